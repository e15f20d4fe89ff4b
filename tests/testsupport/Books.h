#pragma once

#include "money/Currency.h"

#include <QDate>
#include <QString>

// Records written straight into the open data file, as the screens would have left them.
bool AddCard(const QString &code, const QString &title, const QString &taxNumber = QString(),
    const QString &taxOffice = QString(), int tip = 0);
bool AddTransaction(const QString &code, int islem, int ba, Currency amount, QDate date = QDate(2026, 11, 16));

// A ledger row's amounts in whole liras; tevkifat: the VAT its payer withheld (kept beside the
// row as a receipt keeps it).
struct LedgerAmountsInUnits
{
    qint64 brut = 0, stopaj = 0, fon = 0, kdv = 0, tevkifat = 0;
};
bool AddLedgerRow(int islem, QDate date, const LedgerAmountsInUnits &amounts, const QString &cari = QString(),
    const QString &evrak = QStringLiteral("E1"), const QString &ack = QStringLiteral("Kayıt"));

// Makes the engine refuse every `operation` ("INSERT", "UPDATE" or "DELETE") on `table` from now
// on, as a full disk or a locked file would: the screens' failure paths.
bool RefuseWrites(const QString &table, const QString &operation);
