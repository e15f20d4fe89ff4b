#pragma once

#include <QDate>
#include <QString>

// Dates are kept as whole day numbers counted from 30 December 1899, so that SQL can compare
// them as plain integers.
qint64 DayNumber(QDate date);
QDate DateFromDayNumber(qint64 dayNumber);
// The one date form of every screen and printout: "dd.MM.yyyy".
QString FormatDate(QDate date);
