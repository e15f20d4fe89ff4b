#include "printing/GraphicDocument.h"

#include "printing/CupsPrinters.h"

#include <QDir>
#include <QFileInfo>
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

double GraphicDocument::textWidth(const QFont &font, const QString &text) const
{
    return QFontMetricsF(font, m_printer.get()).horizontalAdvance(text);
}

double GraphicDocument::lineHeight(const QFont &font) const
{
    return QFontMetricsF(font, m_printer.get()).height();
}

void GraphicDocument::beginPage()
{
    m_pages.emplace_back();
    m_pageOpen = true;
}

void GraphicDocument::endPage()
{
    m_pageOpen = false;
}

void GraphicDocument::drawText(const QRect &field, Qt::Alignment alignment, const QFont &font, const QString &text)
{
    if (m_pageOpen)
        m_pages.back().push_back(Item { field, QLine(), alignment, font, text, false });
}

void GraphicDocument::drawRule(const QLine &rule)
{
    if (m_pageOpen)
        m_pages.back().push_back(Item { QRect(), rule, Qt::Alignment(), QFont(), QString(), true });
}

bool GraphicDocument::play(QPrinter *printer) const
{
    QPainter painter;
    if (!painter.begin(printer))
        return false;
    for (size_t i = 0; i < m_pages.size(); ++i) {
        if (i > 0)
            printer->newPage();
        for (const Item &item : m_pages[i]) {
            if (item.isRule) {
                painter.drawLine(item.rule);
                continue;
            }
            painter.setFont(item.font);
            painter.setClipRect(item.field);
            painter.drawText(item.field, int(item.alignment | Qt::AlignVCenter | Qt::TextSingleLine), item.text);
            painter.setClipping(false);
        }
    }
    return painter.end();
}

bool GraphicDocument::toFile() const
{
    return m_printer->outputFormat() == QPrinter::PdfFormat;
}

QString GraphicDocument::destination() const
{
    return toFile() ? QStringLiteral("Dosya: ") + m_printer->outputFileName()
                    : QStringLiteral("Yazıcı: ") + m_printer->printerName();
}

QString GraphicDocument::whyNotWritten() const
{
    if (toFile())
        return QFileInfo(m_printer->outputFileName()).absoluteDir().exists() ? QStringLiteral("dosya yazılamadı")
                                                                             : QStringLiteral("klasör bulunamadı");
    return InstalledPrinters().contains(m_printer->printerName()) ? QStringLiteral("yazıcı açılamadı")
                                                                  : QStringLiteral("yazıcı bulunamadı");
}

bool GraphicDocument::finish()
{
    m_pageOpen = false;
    if (m_pages.empty())
        return true;
    if (m_target == PrintSettings::GraphicTarget::Preview) {
        QPrintPreviewDialog preview(m_printer.get());
        preview.setWindowTitle(QStringLiteral(" Önizleme "));
        QObject::connect(
            &preview, &QPrintPreviewDialog::paintRequested, &preview, [this](QPrinter *printer) { play(printer); });
        preview.exec();
        return true;
    }
    if (m_printer->isValid() && play(m_printer.get())
        && (!toFile() || QFileInfo(m_printer->outputFileName()).size() > 0))
        return true;
    m_failure = whyNotWritten();
    return false;
}
