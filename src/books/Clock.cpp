#include "books/Clock.h"

namespace {
QDate &fixedToday()
{
    static QDate date;
    return date;
}
} // namespace

QDate Today()
{
    return fixedToday().isValid() ? fixedToday() : QDate::currentDate();
}

void SetToday(QDate date)
{
    fixedToday() = date;
}
