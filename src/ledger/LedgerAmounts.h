#pragma once

#include "money/Currency.h"

// The amounts of a ledger row, or their sums.
struct LedgerAmounts
{
    Currency brut, stopaj, fon, kdv;
    LedgerAmounts &operator+=(const LedgerAmounts &other);
};
