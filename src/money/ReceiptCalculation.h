#pragma once

#include "money/Currency.h"

// The amounts of a self-employment receipt. Rates are percentages; the fund levy is a
// percentage of the withholding, not of the gross fee.
struct ReceiptAmounts
{
    Currency gross;
    Currency stopaj;
    Currency fon;
    Currency net;
    Currency kdv;
};

struct ReceiptRates
{
    float stopaj = 0;
    float fon = 0;
    float kdv = 0;
};

// From a typed gross fee: withholding and levy only where ticked, VAT always.
ReceiptAmounts FromGross(Currency gross, const ReceiptRates &rates, bool withhold, bool levy);
// From a typed net fee: the gross is net × 100 / (100 − (stopaj + fon)), whatever is ticked,
// and not rounded; the net keeps the typed value.
ReceiptAmounts FromNet(Currency net, const ReceiptRates &rates, bool withhold, bool levy);

// The VAT the payer withholds and pays to the tax office: a share of the VAT in percent, rounded.
Currency WithheldVat(Currency kdv, int percent);
// What the payer pays on the receipt: the net fee and the VAT less the VAT the payer withholds.
Currency PayableTotal(Currency net, Currency kdv, Currency withheld);
