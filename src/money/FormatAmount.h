#pragma once

#include "money/Currency.h"

#include <QString>

// Shows an amount given in plain decimal notation ("." as the point) with the parameter
// decimals: no leading zero (".50"), groups of groupSize digits (0: none), "-" in front,
// and zero as the empty text.
QString FormatAmount(const QString &amountText, long groupSize);
QString FormatAmount(Currency amount, long groupSize = 3);
// The same with an explicit number of decimals (the numeric input fields have their own).
QString FormatNumber(const QString &numberText, int decimals, long groupSize);
