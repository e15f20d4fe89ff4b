#pragma once

#include "money/Currency.h"

#include <QString>

// The amount in Turkish words for a receipt: "oniki YTL beş YKR". The whole units are spelled
// from the truncated amount, the sub-units from the rounded one; a negative amount is spelled
// by its magnitude.
QString AmountInWords(Currency amount);
