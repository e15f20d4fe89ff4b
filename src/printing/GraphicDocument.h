#pragma once

#include "printing/PrintSettings.h"

#include <QFont>
#include <QLine>
#include <QRect>
#include <QString>

#include <memory>
#include <vector>

class QPainter;
class QPrinter;

// One graphic printout. Its pages are kept as the texts and rules drawn on them, in the target
// printer's device pixels, until the document ends; then they go to the printer or the PDF
// file, or into a preview from which the user prints them.
class GraphicDocument
{
public:
    GraphicDocument(const QString &name, PrintSettings::GraphicTarget target, const QString &pdfFile);
    ~GraphicDocument();

    double printableWidth() const;
    double printableHeight() const;
    double textWidth(const QFont &font, const QString &text) const;
    double lineHeight(const QFont &font) const;

    void beginPage();
    void endPage();
    bool pageOpen() const { return m_pageOpen; }
    // Text in a field, one line, clipped to the field.
    void drawText(const QRect &field, Qt::Alignment alignment, const QFont &font, const QString &text);
    void drawRule(const QLine &rule);
    // Sends the pages out; false when the target cannot be written (failure() says why).
    bool finish();
    // Where the pages go, as the user names it: "Dosya: …" or "Yazıcı: …".
    QString destination() const;
    QString failure() const { return m_failure; }

private:
    struct Item
    {
        QRect field;
        QLine rule;
        Qt::Alignment alignment;
        QFont font;
        QString text;
        bool isRule = false;
    };
    using Page = std::vector<Item>;
    // Draws the pages on the printer (the document's own, or a preview's); false when the
    // painter could not begin or end.
    bool play(QPrinter *printer) const;
    bool toFile() const;
    QString whyNotWritten() const;

    std::unique_ptr<QPrinter> m_printer;
    PrintSettings::GraphicTarget m_target;
    std::vector<Page> m_pages;
    bool m_pageOpen = false;
    QString m_failure;
};
