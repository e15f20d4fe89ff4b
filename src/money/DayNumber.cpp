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

// "dd.MM.yyyy" written digit by digit: lists format tens of thousands of dates at a time.
QString FormatDate(QDate date)
{
    int year = 0, month = 0, day = 0;
    date.getDate(&year, &month, &day);
    if (!date.isValid() || year < 1 || year > 9999)
        return date.toString(QStringLiteral("dd.MM.yyyy"));
    const char16_t text[10] = { char16_t(u'0' + day / 10), char16_t(u'0' + day % 10), u'.', char16_t(u'0' + month / 10),
        char16_t(u'0' + month % 10), u'.', char16_t(u'0' + year / 1000), char16_t(u'0' + year / 100 % 10),
        char16_t(u'0' + year / 10 % 10), char16_t(u'0' + year % 10) };
    return QString::fromUtf16(text, 10);
}
