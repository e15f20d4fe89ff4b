#include "testsupport/Books.h"

#include "books/AccessLayer.h"
#include "books/DataFiles.h"
#include "books/Postings.h"

bool AddCard(const QString &code, const QString &title, const QString &taxNumber, const QString &taxOffice, int tip)
{
    Recordset &cards = *dataFiles().carkart;
    RsAddNew(cards);
    FieldWrite(cards, QStringLiteral("kod"), code);
    FieldWrite(cards, QStringLiteral("unv"), title);
    FieldWrite(cards, QStringLiteral("vn"), taxNumber);
    FieldWrite(cards, QStringLiteral("vd"), taxOffice);
    FieldWrite(cards, QStringLiteral("tip"), tip);
    return RsUpdate(cards);
}

bool AddTransaction(const QString &code, int islem, int ba, Currency amount, QDate date)
{
    return AddAccountPosting({ code, date, islem, QString(), QString(), ba, amount }) > 0;
}

bool AddLedgerRow(int islem, QDate date, const LedgerAmountsInUnits &amounts, const QString &cari, const QString &evrak,
    const QString &ack)
{
    const qint64 oto = AddLedgerPosting({ 0, date, islem, evrak, cari, ack, Currency::fromUnits(amounts.brut),
        Currency::fromUnits(amounts.stopaj), Currency::fromUnits(amounts.fon), Currency::fromUnits(amounts.kdv) });
    if (oto <= 0 || amounts.tevkifat == 0)
        return oto > 0;
    ReceiptRecord withheld;
    withheld.tevkifat = Currency::fromUnits(amounts.tevkifat);
    return AddReceiptRecord(oto, 0, withheld);
}

bool RefuseWrites(const QString &table, const QString &operation)
{
    return SqlExecute(*dataFiles().db,
        QStringLiteral("CREATE TRIGGER refuse_%1_%2 BEFORE %2 ON %1 BEGIN SELECT RAISE(ABORT, 'refused'); END")
            .arg(table, operation));
}
