#pragma once

#include <QDate>

// Today's date for everything that completes or proposes a date; tests can fix it.
QDate Today();
// A valid date fixes "today"; an invalid one returns to the system clock.
void SetToday(QDate date);
