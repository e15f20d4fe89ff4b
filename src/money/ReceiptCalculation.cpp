#include "money/ReceiptCalculation.h"

#include "money/RoundAmount.h"

ReceiptAmounts FromGross(Currency gross, const ReceiptRates &rates, bool withhold, bool levy)
{
    ReceiptAmounts amounts;
    amounts.gross = gross;
    amounts.stopaj = withhold ? PercentOf(gross, rates.stopaj) : Currency();
    amounts.fon = levy ? PercentOf(amounts.stopaj, rates.fon) : Currency();
    amounts.net = gross - (amounts.stopaj + amounts.fon);
    amounts.kdv = PercentOf(gross, rates.kdv);
    return amounts;
}

ReceiptAmounts FromNet(Currency net, const ReceiptRates &rates, bool withhold, bool levy)
{
    const double share = 100.0 - (double(rates.stopaj) + double(rates.fon));
    const Currency gross = share != 0 ? Currency::fromDouble(net.toDouble() * 100.0 / share) : Currency();
    ReceiptAmounts amounts = FromGross(gross, rates, withhold, levy);
    amounts.net = net;
    return amounts;
}

Currency WithheldVat(Currency kdv, int percent)
{
    return PercentOf(kdv, float(percent));
}

Currency PayableTotal(Currency net, Currency kdv, Currency withheld)
{
    return net + kdv - withheld;
}
