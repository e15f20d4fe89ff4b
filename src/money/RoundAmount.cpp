#include "money/RoundAmount.h"

#include "money/AmountConventions.h"

#include <QtGlobal>

Currency RoundAmount(Currency amount)
{
    if (!amount.isValid())
        return amount;
    const int decimals = qBound(0, amountConventions().tlonda, 4);
    qint64 step = 1;
    for (int i = decimals; i < 4; ++i)
        step *= 10;
    return Currency::fromRaw(roundHalfEven(amount.raw() + 5, step));
}

Currency RoundAmount(double amount)
{
    return RoundAmount(Currency::fromDouble(amount));
}

Currency PercentOf(Currency amount, float rate)
{
    return RoundAmount(amount.toDouble() * double(rate) / 100.0);
}
