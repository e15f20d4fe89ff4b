#pragma once

#include "money/Currency.h"

#include <QString>

// The process-wide parameter set, mirrored from table genel. The decimals of amounts, the
// separators and the currency words belong to it too; they live in amountConventions(),
// where every amount routine reads them.
struct ParameterSet
{
    float stopaj = 0; // withholding rate, percent of the gross fee
    float fon = 0; // fund-levy rate, percent of the withholding
    float kdv = 0; // VAT rate, percent of the gross fee
    Currency serino; // last self-employment receipt number
    Currency emanet; // last deposit receipt number
    QString not1, not2, not3, not4; // names of the account cards' note fields
    QString unvan; // the holder's name
    QString vergino; // the holder's tax number; e-SMMs of other issuers are held back
};

ParameterSet &parameters();

// The number conventions every start begins with: two decimals, "." and ",".
void SetStartConventions();
// Fills the set from genel, in the documented order.
void LoadParameters();
// Back to a fresh process's values (for tests).
void ResetParameters();
// Whether "Ayarlar" has been saved on the open book (the decimals and the rates are stored);
// true when no book is open.
bool ParametersSaved();

// Typed rows of genel: a missing key or a Null value reads as "" or 0.
QString GenelTxtGet(const QString &key);
float GenelSingGet(const QString &key);
int GenelIntegGet(const QString &key);
Currency GenelCurrenGet(const QString &key);
// Write the key's one row (inserting it the first time); a failure is shown, not returned.
void GenelTxtSet(const QString &key, const QString &value);
void GenelSingSet(const QString &key, float value);
void GenelIntegSet(const QString &key, int value);
void GenelCurrenSet(const QString &key, Currency value);
