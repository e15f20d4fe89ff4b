#pragma once

#include "money/Currency.h"

#include <QDate>
#include <QString>

// Records written straight into the open data file, as the screens would have left them.
bool AddCard(const QString &code, const QString &title);
bool AddTransaction(const QString &code, int islem, int ba, Currency amount, QDate date = QDate(2026, 11, 16));
