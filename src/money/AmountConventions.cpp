#include "money/AmountConventions.h"

AmountConventions &amountConventions()
{
    static AmountConventions conventions;
    return conventions;
}
