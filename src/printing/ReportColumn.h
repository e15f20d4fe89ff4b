#pragma once

#include <QString>
#include <QVariantList>

#include <vector>

// What the cells of a report column hold: texts, dates (QDate), whole numbers or amounts
// (Currency). A cell may always be a text instead (a blank, a caption).
enum class CellKind { Text, Date, Number, Amount };

// One column of a report, declared once: the list on the screen, the printed pages and the
// spreadsheet (written from the list) all take it from here. A report's rows are lists of typed
// cells, one per declared column.
struct ReportColumn
{
    // On paper: the head, the width in print columns (0: not printed), the alignment (0 left,
    // 1 right, 2 centred), and whether its amounts run into the page totals.
    QString head;
    int width = 0;
    int align = 0;
    bool summed = false;
    CellKind kind = CellKind::Text;
    // On the screen: the field name, the caption ("": the head) and the width in pixels (0: not
    // listed).
    QString name;
    QString caption;
    int pixels = 0;

    bool printed() const { return width > 0; }
    bool listed() const { return pixels > 0; }
    QString listCaption() const { return caption.isEmpty() ? head : caption; }
    // A different caption on the screen.
    ReportColumn &listedAs(const QString &text);
    // Right-aligned on paper.
    ReportColumn &right();
};

using ReportColumns = std::vector<ReportColumn>;

// Texts and dates are left-aligned; numbers and amounts right-aligned; amounts are summed.
ReportColumn TextColumn(const QString &name, const QString &head, int width, int pixels);
ReportColumn DateColumn(const QString &name, const QString &head, int width, int pixels);
ReportColumn NumberColumn(const QString &name, const QString &head, int width, int pixels);
ReportColumn AmountColumn(const QString &name, const QString &head, int width, int pixels);

// A cell as printed: an amount by FormatAmount and a number without groups (zero as blank), a
// date as "dd.MM.yyyy", anything else as its text.
QString PrintedCellText(const QVariant &cell);
