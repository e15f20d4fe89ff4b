#include "ledger/LedgerAmounts.h"

LedgerAmounts &LedgerAmounts::operator+=(const LedgerAmounts &other)
{
    brut += other.brut;
    stopaj += other.stopaj;
    fon += other.fon;
    kdv += other.kdv;
    tevkifat += other.tevkifat;
    return *this;
}
