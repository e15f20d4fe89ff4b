#include "printing/GraphicDocument.h"

#include "printing/CupsPrinters.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>

GraphicDocument::GraphicDocument(const QString &name, PrintSettings::GraphicTarget target, const QString &pdfFile)
    : m_printer(std::make_unique<QPrinter>(QPrinter::HighResolution))
    , m_target(target)
{
    m_printer->setDocName(name);
    const QString printer = CurrentPrinterName();
    if (target == PrintSettings::GraphicTarget::PdfFile || printer.isEmpty()) {
        m_printer->setOutputFormat(QPrinter::PdfFormat);
        m_printer->setOutputFileName(pdfFile);
    } else {
        m_printer->setPrinterName(printer);
    }
}

GraphicDocument::~GraphicDocument() = default;

double GraphicDocument::printableWidth() const
{
    return m_printer->pageLayout().paintRectPixels(m_printer->resolution()).width();
}

double GraphicDocument::printableHeight() const
{
    return m_printer->pageLayout().paintRectPixels(m_printer->resolution()).height();
}

QFont GraphicDocument::deviceFont(const QFont &font) const
{
    QFont device = font;
    device.setPixelSize(qMax(1, qRound(font.pointSizeF() * m_printer->resolution() / 72.0)));
    return device;
}

double GraphicDocument::textWidth(const QFont &font, const QString &text) const
{
    return QFontMetricsF(deviceFont(font), m_printer.get()).horizontalAdvance(text);
}

double GraphicDocument::lineHeight(const QFont &font) const
{
    return QFontMetricsF(deviceFont(font), m_printer.get()).height();
}

void GraphicDocument::beginPage()
{
    m_pages.push_back(std::make_unique<QPicture>());
    m_painter = std::make_unique<QPainter>(m_pages.back().get());
}

void GraphicDocument::endPage()
{
    m_painter.reset();
}

void GraphicDocument::play(QPrinter *printer) const
{
    QPainter painter(printer);
    for (size_t i = 0; i < m_pages.size(); ++i) {
        if (i > 0)
            printer->newPage();
        m_pages[i]->play(&painter);
    }
}

bool GraphicDocument::finish()
{
    m_painter.reset();
    if (m_pages.empty())
        return true;
    if (m_target == PrintSettings::GraphicTarget::Preview) {
        QPrintPreviewDialog preview(m_printer.get());
        preview.setWindowTitle(QStringLiteral(" Önizleme "));
        QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview,
                         [this](QPrinter *printer) { play(printer); });
        preview.exec();
        return true;
    }
    if (!m_printer->isValid())
        return false;
    play(m_printer.get());
    return true;
}
