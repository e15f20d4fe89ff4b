#pragma once

#include "money/Currency.h"

#include <QDate>
#include <QString>

// The amount in Turkish words for a document of the given date: "oniki TL beş Kr", or for a date
// up to 31 December 2008, when the lira was the "Yeni Türk Lirası", "oniki YTL beş YKR" (an
// earlier date, which nothing of the program's time carries, reads so too; no date reads as
// today's lira). The whole units are spelled from the truncated amount, the sub-units from the
// rounded one; a negative amount is spelled by its magnitude.
QString AmountInWords(Currency amount, QDate date);
