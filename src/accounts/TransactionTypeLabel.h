#pragma once

#include <QString>

// The label of a transaction type: "0-Devir" … "9-Diğer"; "" outside 0-9.
QString TransactionTypeLabel(int islem);
