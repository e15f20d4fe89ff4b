#include "printing/PagedReport.h"

#include "money/FormatAmount.h"
#include "printing/PrintSettings.h"
#include "printing/Prnx.h"

namespace {

const QString gap = QStringLiteral(" ");
constexpr int footingLines = 2; // the rules and the totals

} // namespace

PagedReport::PagedReport(Prnx &prnx, ReportLayout layout)
    : m_prnx(prnx)
    , m_layout(std::move(layout))
    , m_linesPerPage(printSettings().lines)
    , m_footRoom(prnx.printertip() == Prnx::Graphic ? qMax(m_layout.footRoom, footingLines) : m_layout.footRoom)
{
    for (const ReportColumn &column : m_layout.columns)
        if (column.printed())
            m_columns.push_back(column);
    for (const ReportColumn &column : m_columns)
        if (column.summed)
            m_totals.push_back(Currency());
}

QVariantList PagedReport::printedCells(const QVariantList &cells) const
{
    QVariantList printed;
    for (size_t c = 0; c < m_layout.columns.size() && int(c) < cells.size(); ++c)
        if (m_layout.columns[c].printed())
            printed << cells[int(c)];
    return printed;
}

void PagedReport::beginPage()
{
    if (m_prnx.SatirSayisi() == 0)
        pageHead();
}

void PagedReport::printRow(const QVariantList &row)
{
    beginPage();
    const QVariantList cells = printedCells(row);
    printLine(cells);
    size_t total = 0;
    for (size_t c = 0; c < m_columns.size(); ++c) {
        if (!m_columns[c].summed)
            continue;
        const QVariant cell = cells.value(int(c));
        if (cell.userType() == qMetaTypeId<Currency>())
            m_totals[total] += cell.value<Currency>();
        ++total;
    }
    m_printed = true;
    if (m_prnx.SatirSayisi() + m_footRoom >= m_linesPerPage)
        pageFoot();
}

void PagedReport::finish()
{
    if (m_prnx.SatirSayisi() > 0) {
        pageFoot();
    } else if (m_printed && m_layout.totalsOnOwnPage) {
        pageHead();
        pageFoot();
    }
}

void PagedReport::pageHead()
{
    m_prnx.YeniSayfa();
    if (m_layout.pageTop)
        m_layout.pageTop(m_prnx);
    printHeads();
    printRules();
    Currency carried;
    for (Currency total : m_totals)
        carried += total;
    if (carried > Currency() && !m_layout.carryCaption.isEmpty())
        printCaptionLine(m_layout.carryCaption, totalTexts());
}

void PagedReport::pageFoot()
{
    printRules();
    printCaptionLine(m_layout.totalCaption, totalTexts(), m_layout.boldTotals);
    m_prnx.SayfaBitti(true);
}

void PagedReport::printHeads()
{
    const auto &columns = m_columns;
    for (size_t c = 0; c < columns.size(); ++c) {
        const bool last = c + 1 == columns.size();
        m_prnx.Lprint(columns[c].head, columns[c].width, last, 0, m_layout.boldHeads);
        if (!last)
            m_prnx.Lprint(gap, 1);
    }
}

void PagedReport::printRules()
{
    const auto &columns = m_columns;
    for (size_t c = 0; c < columns.size(); ++c) {
        const bool last = c + 1 == columns.size();
        m_prnx.LinePrint(columns[c].width, false, last);
        if (!last)
            m_prnx.Lprint(gap, 1);
    }
}

void PagedReport::printCells(const QVariantList &cells)
{
    printLine(printedCells(cells));
}

void PagedReport::printLine(const QVariantList &cells)
{
    const auto &columns = m_columns;
    const size_t count = qMin(columns.size(), size_t(cells.size()));
    for (size_t c = 0; c < count; ++c) {
        const bool last = c + 1 == count;
        m_prnx.Lprint(PrintedCellText(cells[int(c)]), columns[c].width, last, columns[c].align);
        if (!last)
            m_prnx.Lprint(gap, 1);
    }
}

// The unsummed columns lead and the summed ones follow: the caption spans the leading ones
// and the gaps between them.
int PagedReport::captionWidth() const
{
    if (m_layout.captionWidth > 0)
        return m_layout.captionWidth;
    int width = -1;
    for (const ReportColumn &column : m_columns) {
        if (column.summed)
            break;
        width += column.width + 1;
    }
    return qMax(width, 0);
}

void PagedReport::printCaptionLine(const QString &caption, const QStringList &texts, bool bold, int align)
{
    m_prnx.Lprint(caption, captionWidth(), false, align, bold);
    int text = 0;
    for (const ReportColumn &column : m_columns) {
        if (!column.summed)
            continue;
        m_prnx.Lprint(gap, 1);
        const bool last = text + 1 == texts.size();
        m_prnx.Lprint(texts.value(text), column.width, last, 1, bold);
        if (last)
            return;
        ++text;
    }
    m_prnx.Lprint(QString(), 0, true); // ends the line when there are fewer texts than columns
}

QStringList PagedReport::totalTexts() const
{
    QStringList texts;
    for (Currency total : m_totals)
        texts << FormatAmount(total);
    return texts;
}

void PrintPagedReport(
    int kind, const QString &document, ReportLayout layout, const std::function<void(PagedReport &report)> &rows)
{
    Prnx prnx;
    if (!prnx.OpenPrinter(kind, document, true))
        return;
    PagedReport report(prnx, std::move(layout));
    rows(report);
    report.finish();
    prnx.ClosePrinter();
}
