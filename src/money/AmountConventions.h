#pragma once

#include <QChar>
#include <QString>

// How amounts are rounded and shown: part of the process-wide parameter set,
// kept here because every amount routine reads it.
struct AmountConventions
{
    int tlonda = 2; // decimals of money amounts
    QChar decimalSeparator = u'.';
    QChar thousandsSeparator = u',';
};

AmountConventions &amountConventions();
