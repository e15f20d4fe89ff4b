#pragma once

#include "printing/PrintSettings.h"

#include <QFont>
#include <QPicture>
#include <QString>

#include <memory>
#include <vector>

class QPainter;
class QPrinter;

// One graphic printout. Pages are drawn in the target printer's device pixels and kept until
// the document ends; then they go to the printer or the PDF file, or into a preview from which
// the user prints them.
class GraphicDocument
{
public:
    GraphicDocument(const QString &name, PrintSettings::GraphicTarget target, const QString &pdfFile);
    ~GraphicDocument();

    double printableWidth() const;
    double printableHeight() const;
    // The font at the target's resolution (its size fixed in device pixels).
    QFont deviceFont(const QFont &font) const;
    double textWidth(const QFont &font, const QString &text) const;
    double lineHeight(const QFont &font) const;

    void beginPage();
    void endPage();
    // The painter of the page being drawn; nullptr between pages.
    QPainter *painter() const { return m_painter.get(); }
    // Sends the pages out; false when the target cannot be written.
    bool finish();

private:
    void play(QPrinter *printer) const;

    std::unique_ptr<QPrinter> m_printer;
    PrintSettings::GraphicTarget m_target;
    std::vector<std::unique_ptr<QPicture>> m_pages;
    std::unique_ptr<QPainter> m_painter;
};
