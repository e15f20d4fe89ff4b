#pragma once

#include "money/Currency.h"

// The amounts of a ledger row, or their sums; tevkifat: the part of the VAT its payer withheld.
struct LedgerAmounts
{
    Currency brut, stopaj, fon, kdv, tevkifat;
    LedgerAmounts &operator+=(const LedgerAmounts &other);
};
