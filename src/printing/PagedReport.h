#pragma once

#include "money/Currency.h"
#include "printing/ReportColumn.h"

#include <QString>
#include <QVariant>

#include <functional>
#include <vector>

class Prnx;

// How a paged list looks: its columns (the printed ones of the declaration, one blank column
// between neighbours), the lines a page begins with, and its carry and total lines.
struct ReportLayout
{
    ReportColumns columns;
    // Printed after a page is begun and before the column heads (title, ranges, page number).
    std::function<void(Prnx &)> pageTop;
    bool boldHeads = true;
    // The first line after the heads on a page begun when the running totals add up to more
    // than zero (every page after the first, once amounts were printed).
    QString carryCaption;
    QString totalCaption = QStringLiteral("T O P L A M :");
    bool boldTotals = false;
    // The width of the carry and total captions; 0 spans the unsummed columns and their gaps.
    int captionWidth = 0;
    // A page is full when its line count + footRoom reaches the lines per page. On a graphic
    // page the footing's two lines always have their room (a dot-matrix form may take the
    // footing after its last line).
    int footRoom = 6;
    // When the last row filled a page exactly: false ends there (its footing holds the totals),
    // true prints the final totals on a page of their own, with its head.
    bool totalsOnOwnPage = false;
};

// Prints a list over the print engine page by page: the page head with the column heads and
// their rules, the carry line on every page after the first, the rows, the page footing with
// the running totals, and the final totals. The engine must be open (its kind has settled the
// lines per page of the print-settings record); the caller closes it.
class PagedReport
{
public:
    PagedReport(Prnx &prnx, ReportLayout layout);

    // One row: a cell per declared column (PrintedCellText); an amount in a summed column is
    // added to the running totals. A row of fewer cells ends after its last.
    void printRow(const QVariantList &cells);
    // Begins a page with its head unless one is begun.
    void beginPage();
    // After the last row: the footing of the open page, or the final totals as the layout says.
    void finish();
    const std::vector<Currency> &totals() const { return m_totals; }

    // Pieces for lists that print on one page of their own.
    void printHeads();
    void printRules();
    // caption over the unsummed columns (right-aligned unless told), then a text under each
    // summed column.
    void printCaptionLine(const QString &caption, const QStringList &texts, bool bold = false, int align = 1);
    void printCells(const QVariantList &cells);

private:
    // The cells of the printed columns, up to the row's last cell.
    QVariantList printedCells(const QVariantList &cells) const;
    void printLine(const QVariantList &printed);
    void pageHead();
    void pageFoot();
    int captionWidth() const;
    QStringList totalTexts() const;

    Prnx &m_prnx;
    ReportLayout m_layout;
    ReportColumns m_columns; // the printed ones
    int m_linesPerPage;
    int m_footRoom;
    std::vector<Currency> m_totals;
    bool m_printed = false;
};

// The whole printout of a paged list: opens the print engine of kind (Prnx::Graphic or Prnx::Raw,
// condensed) for the document, gives the report to rows to print them, finishes and closes. The
// engine says when the printer did not open.
void PrintPagedReport(
    int kind, const QString &document, ReportLayout layout, const std::function<void(PagedReport &report)> &rows);
