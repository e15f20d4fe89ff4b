#include "testsupport/Books.h"

#include "core/AccessLayer.h"
#include "core/DataFiles.h"

bool AddCard(const QString &code, const QString &title)
{
    Recordset &cards = *dataFiles().carkart;
    RsAddNew(cards);
    FieldWrite(cards, QStringLiteral("kod"), code);
    FieldWrite(cards, QStringLiteral("unv"), title);
    return RsUpdate(cards);
}

bool AddTransaction(const QString &code, int islem, int ba, Currency amount, QDate date)
{
    Recordset &rows = *dataFiles().carhar;
    RsAddNew(rows);
    FieldWrite(rows, QStringLiteral("kod"), code);
    FieldWrite(rows, QStringLiteral("tarih"), date);
    FieldWrite(rows, QStringLiteral("islem"), islem);
    FieldWrite(rows, QStringLiteral("ba"), ba);
    FieldWrite(rows, QStringLiteral("tutar"), QVariant::fromValue(amount));
    return RsUpdate(rows);
}
