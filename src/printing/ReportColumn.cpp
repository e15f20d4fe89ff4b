#include "printing/ReportColumn.h"

#include "money/Currency.h"
#include "money/DayNumber.h"
#include "money/FormatAmount.h"

#include <QDate>

namespace {

ReportColumn column(CellKind kind, const QString &name, const QString &head, int width, int pixels)
{
    ReportColumn declared;
    declared.head = head;
    declared.width = width;
    declared.kind = kind;
    declared.name = name;
    declared.pixels = pixels;
    return declared;
}

} // namespace

ReportColumn &ReportColumn::listedAs(const QString &text)
{
    caption = text;
    return *this;
}

ReportColumn &ReportColumn::right()
{
    align = 1;
    return *this;
}

ReportColumn TextColumn(const QString &name, const QString &head, int width, int pixels)
{
    return column(CellKind::Text, name, head, width, pixels);
}

ReportColumn DateColumn(const QString &name, const QString &head, int width, int pixels)
{
    return column(CellKind::Date, name, head, width, pixels);
}

ReportColumn NumberColumn(const QString &name, const QString &head, int width, int pixels)
{
    return column(CellKind::Number, name, head, width, pixels).right();
}

ReportColumn AmountColumn(const QString &name, const QString &head, int width, int pixels)
{
    ReportColumn declared = column(CellKind::Amount, name, head, width, pixels).right();
    declared.summed = true;
    return declared;
}

QString PrintedCellText(const QVariant &cell)
{
    if (cell.userType() == qMetaTypeId<Currency>())
        return FormatAmount(cell.value<Currency>());
    if (cell.typeId() == QMetaType::QDate)
        return FormatDate(cell.toDate());
    if (cell.typeId() == QMetaType::Int || cell.typeId() == QMetaType::LongLong)
        return FormatNumber(cell.toString(), 0, 0);
    return cell.toString();
}
