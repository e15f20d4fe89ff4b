#include "money/DayNumber.h"

namespace {
const qint64 originJulianDay = QDate(1899, 12, 30).toJulianDay();
}

qint64 DayNumber(QDate date)
{
    return date.toJulianDay() - originJulianDay;
}

QDate DateFromDayNumber(qint64 dayNumber)
{
    return QDate::fromJulianDay(dayNumber + originJulianDay);
}

QString FormatDate(QDate date)
{
    return date.toString(QStringLiteral("dd.MM.yyyy"));
}
