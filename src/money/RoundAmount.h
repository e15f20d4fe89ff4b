#pragma once

#include "money/Currency.h"

// Adds 0.0005 and rounds to the parameter decimals, halves to even, on the exact value.
Currency RoundAmount(Currency amount);
// Any other number is first converted to a Currency.
Currency RoundAmount(double amount);
// An amount as it is kept: one that already has no more than the parameter decimals stays as it
// is, however often it is kept again; any other is rounded by RoundAmount.
Currency KeptAmount(Currency amount);
// A percentage (a rate of the parameters) of an amount, rounded as amounts are.
Currency PercentOf(Currency amount, float rate);
