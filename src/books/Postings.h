#pragma once

#include "money/Currency.h"

#include <QDate>
#include <QString>

// Typed postings: the only place that writes account transactions (carhar) and ledger rows
// (defter) field by field. Rows are addressed by their auto-number `oto`.

// One account transaction. islem: 0 "Devir" … 9 "Diğer"; ba: 0 debit "Borç", 1 credit "Alacak".
struct AccountPosting
{
    QString kod;
    QDate tarih;
    int islem = 0;
    QString evrak;
    QString ack;
    int ba = 0;
    Currency tutar;
};

// One row of the professional's ledger. islem: 0 income "Gelir", 1 expense "Gider".
struct LedgerPosting
{
    int sira = 0;
    QDate tarih;
    int islem = 0;
    QString evrak;
    QString cari;
    QString ack;
    Currency brut;
    Currency stopaj;
    Currency fon;
    Currency kdv;
};

// What a receipt keeps beyond its two postings, in the program's own table `makbuz`, one row per
// receipt's ledger row: the VAT its payer withheld and, for a document brought in from the
// portal, its full number, identity (ETTN), issuer's tax number and the file it came from.
struct ReceiptRecord
{
    int tevkoran = 0; // the withheld share of the VAT, in percent
    Currency tevkifat; // the withheld VAT
    QString tevkkod;
    QString makbuzno;
    QString ettn;
    QString vkn;
    QString dosya;
};

// Each answers the new row's oto, or 0 when the row could not be stored.
qint64 AddAccountPosting(const AccountPosting &posting);
qint64 AddLedgerPosting(const LedgerPosting &posting);
// The receipt's record beside its ledger row (ledgerOto) and account row (accountOto).
bool AddReceiptRecord(qint64 ledgerOto, qint64 accountOto, const ReceiptRecord &record);
// False when no row has this oto or the engine refused the change.
bool ChangeAccountPosting(qint64 oto, const AccountPosting &posting);
bool ChangeLedgerPosting(qint64 oto, const LedgerPosting &posting);
// The stored ledger row with this oto; false when there is none.
bool ReadLedgerPosting(qint64 oto, LedgerPosting *posting);
// The two tables of postings, for what both share.
enum class PostingBook { Accounts, Ledger };
bool PostingExists(PostingBook book, qint64 oto);
bool DeletePosting(PostingBook book, qint64 oto);
// Stores a row: changes the row with this oto when there is one, adds it otherwise. Answers
// the row's oto (0 on failure).
qint64 StoreAccountPosting(qint64 oto, const AccountPosting &posting);
qint64 StoreLedgerPosting(qint64 oto, const LedgerPosting &posting);
