#include "money/RoundAmount.h"

#include "money/AmountConventions.h"

#include <QtGlobal>

namespace {

// The ten-thousandths of one unit of the last parameter decimal.
qint64 decimalStep()
{
    const int decimals = qBound(0, amountConventions().tlonda, 4);
    qint64 step = 1;
    for (int i = decimals; i < 4; ++i)
        step *= 10;
    return step;
}

} // namespace

Currency RoundAmount(Currency amount)
{
    if (!amount.isValid())
        return amount;
    return Currency::fromRaw(roundHalfEven(amount.raw() + 5, decimalStep()));
}

Currency KeptAmount(Currency amount)
{
    return amount.isValid() && amount.raw() % decimalStep() == 0 ? amount : RoundAmount(amount);
}

Currency RoundAmount(double amount)
{
    return RoundAmount(Currency::fromDouble(amount));
}

Currency PercentOf(Currency amount, float rate)
{
    return RoundAmount(amount.toDouble() * double(rate) / 100.0);
}
