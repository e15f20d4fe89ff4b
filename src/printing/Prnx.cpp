#include "printing/Prnx.h"

#include "books/Message.h"
#include "printing/DosPrint.h"
#include "printing/GraphicDocument.h"
#include "printing/PrintSettings.h"
#include "printing/RawText.h"

#include <cmath>

Prnx::Prnx()
    : m_font(QStringLiteral("Tahoma"))
{
    m_font.setPointSizeF(8.25);
}

Prnx::~Prnx() = default;

bool Prnx::OpenPrinter(int printertip, const QString &wPDocname, bool Condanced, int /*wide*/)
{
    m_pages = 0;
    if (m_kind != Closed)
        return true;
    switch (printertip) {
    case Graphic:
        return openGraphic(wPDocname);
    case Raw:
        m_line = Condanced ? QByteArray("\x0f") : QByteArray();
        if (!OpenDosPrinter()) { // the engine stays closed: nothing may be written to the channel
            reportFailure(
                QStringLiteral("Yazıcı Açılamadı"), QStringLiteral("Yazıcı: ") + DosPrinterName(), DosFailure());
            return false;
        }
        m_kind = Raw;
        return true;
    case 3:
    case 4:
    case 5:
        m_kind = printertip; // accepted kinds that print nothing
        return false;
    default:
        return false;
    }
}

bool Prnx::openGraphic(const QString &name)
{
    const PrintSettings &settings = printSettings();
    m_document = std::make_unique<GraphicDocument>(name, settings.target, settings.pdfFile);
    QFont bold = m_font;
    bold.setBold(true);
    const double height = m_document->lineHeight(bold);
    printSettings().lines = int(m_document->printableHeight() / height);
    m_grid = GraphicGrid(m_document->printableWidth(), int(std::lround(height)));
    m_kind = Graphic;
    return true;
}

void Prnx::ClosePrinter()
{
    if (m_continuous)
        return;
    if (!m_overflows.isEmpty()) {
        Message::exclamation(
            QStringLiteral("Sütunlarına sığmayan sayılar \"#\" ile yazdırıldı:\n") + m_overflows.join(u'\n'));
        m_overflows.clear();
    }
    if (m_kind == Graphic) {
        if (!m_document->finish())
            reportFailure(QStringLiteral("Yazdırılamadı"), m_document->destination(), m_document->failure());
        m_document.reset();
    } else if (m_kind == Raw) {
        CloseDosPrinter();
        if (!DosFailure().isEmpty())
            reportFailure(QStringLiteral("Yazdırılamadı"), QStringLiteral("Yazıcı: ") + DosPrinterName(), DosFailure());
    }
    m_kind = Closed;
}

void Prnx::reportFailure(const QString &what, const QString &destination, const QString &why)
{
    Message::exclamation(what + u'\n' + destination + QStringLiteral("\nNeden: ") + why);
}

void Prnx::CloseSurekliBaski()
{
    if (!m_continuous)
        return;
    m_continuous = false;
    ClosePrinter();
}

int Prnx::YeniSayfa()
{
    ++m_pages;
    if (m_kind == Graphic) {
        m_document->beginPage();
        m_grid.topOfPage();
    } else if (m_kind == Raw) {
        DosNewPage();
    }
    m_lines = 0;
    return m_pages;
}

void Prnx::SayfaBitti(bool PageFeed)
{
    if (m_kind == Graphic) {
        m_document->endPage();
    } else if (m_kind == Raw && PageFeed) {
        for (int line = m_lines + 1; line <= printSettings().lines; ++line)
            rawOutput(QStringLiteral(" "), true, false, false, false);
        DosEndPage();
    }
    m_lines = 0;
}

void Prnx::Lprint(
    const QString &text, int en, bool LineFeed, int algn, bool koyu, bool italik, bool altcizgi, bool Ustcizgi)
{
    const bool overflows = OverflowsField(text, en, algn);
    if (overflows && (m_kind == Graphic || m_kind == Raw) && !m_overflows.contains(text))
        m_overflows << text;
    if (m_kind == Graphic) // the marks as on the dot-matrix line; any other text as it is
        drawField(overflows ? FitField(text, en, algn) : text, en, algn, koyu, italik, altcizgi, Ustcizgi);
    else if (m_kind == Raw)
        rawOutput(FitField(text, en, algn), LineFeed, koyu, italik, altcizgi);
    advance(LineFeed);
}

void Prnx::LinePrint(int en, bool koyu, bool LineFeed)
{
    if (m_kind == Graphic) {
        m_document->drawRule(m_grid.placeRule(en));
    } else if (m_kind == Raw) {
        rawOutput(QString(qMax(en, 0), u'_'), LineFeed, koyu, false, false);
    }
    advance(LineFeed);
}

void Prnx::drawField(const QString &text, int en, int algn, bool bold, bool italic, bool underline, bool strikeOut)
{
    QFont font = m_font;
    font.setBold(bold);
    font.setItalic(italic);
    font.setUnderline(underline);
    font.setStrikeOut(strikeOut);
    const QRect field = m_grid.placeField(en, int(std::lround(m_document->textWidth(font, text))));
    const Qt::Alignment alignment = algn == 1 ? Qt::AlignRight : algn == 2 ? Qt::AlignHCenter : Qt::AlignLeft;
    m_document->drawText(field, alignment, font, text); // nothing when no page is open
}

void Prnx::rawOutput(const QString &text, bool lineEnd, bool bold, bool italic, bool underline)
{
    m_line += RawField(text, bold, italic, underline);
    if (lineEnd) {
        DosPrint(m_line + "\r\n");
        m_line.clear();
    }
}

void Prnx::advance(bool lineFeed)
{
    if (!lineFeed)
        return;
    ++m_lines;
    m_grid.lineFeed();
}
