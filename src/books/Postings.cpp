#include "books/Postings.h"

#include "books/AccessLayer.h"
#include "books/Backups.h"
#include "books/DataFiles.h"
#include "books/Database.h"
#include "books/Statement.h"
#include "money/RoundAmount.h"

namespace {

const QString otoIndex = QStringLiteral("oto");

// Amounts are stored as they are shown and printed: with the decimals of the parameters, an
// amount that has them unchanged, so that a row stored again keeps its amounts.
QVariant storedAmount(Currency amount)
{
    return QVariant::fromValue(KeptAmount(amount));
}

void writeFields(Recordset &rs, const AccountPosting &p)
{
    FieldWrite(rs, QStringLiteral("kod"), p.kod);
    FieldWrite(rs, QStringLiteral("tarih"), p.tarih);
    FieldWrite(rs, QStringLiteral("islem"), p.islem);
    FieldWrite(rs, QStringLiteral("evrak"), p.evrak);
    FieldWrite(rs, QStringLiteral("ack"), p.ack);
    FieldWrite(rs, QStringLiteral("ba"), p.ba);
    FieldWrite(rs, QStringLiteral("tutar"), storedAmount(p.tutar));
}

void writeFields(Recordset &rs, const LedgerPosting &p)
{
    FieldWrite(rs, QStringLiteral("sira"), p.sira);
    FieldWrite(rs, QStringLiteral("tarih"), p.tarih);
    FieldWrite(rs, QStringLiteral("islem"), p.islem);
    FieldWrite(rs, QStringLiteral("evrak"), p.evrak);
    FieldWrite(rs, QStringLiteral("cari"), p.cari);
    FieldWrite(rs, QStringLiteral("ack"), p.ack);
    FieldWrite(rs, QStringLiteral("brut"), storedAmount(p.brut));
    FieldWrite(rs, QStringLiteral("stopaj"), storedAmount(p.stopaj));
    FieldWrite(rs, QStringLiteral("fon"), storedAmount(p.fon));
    FieldWrite(rs, QStringLiteral("kdv"), storedAmount(p.kdv));
}

// The new row's oto is its row number in the engine, so no cursor move is needed to learn it
// (a move to the last record fails right after a seek that found nothing).
template <typename Posting> qint64 add(Recordset &rs, const Posting &posting)
{
    if (!RsAddNew(rs))
        return 0;
    writeFields(rs, posting);
    return RsUpdate(rs) ? LastAddedKey(*dataFiles().db) : 0;
}

template <typename Posting> bool change(Recordset &rs, qint64 oto, const Posting &posting)
{
    if (oto <= 0 || !RsSeek(rs, otoIndex, oto) || !RsEdit(rs))
        return false;
    writeFields(rs, posting);
    return RsUpdate(rs);
}

Recordset &table(PostingBook book)
{
    return book == PostingBook::Accounts ? *dataFiles().carhar : *dataFiles().defter;
}

template <typename Posting> qint64 store(Recordset &rs, qint64 oto, const Posting &posting)
{
    if (oto > 0 && RsSeek(rs, otoIndex, oto))
        return change(rs, oto, posting) ? oto : 0;
    return add(rs, posting);
}

} // namespace

qint64 AddAccountPosting(const AccountPosting &posting)
{
    return add(*dataFiles().carhar, posting);
}

qint64 AddLedgerPosting(const LedgerPosting &posting)
{
    return add(*dataFiles().defter, posting);
}

bool AddReceiptRecord(qint64 ledgerOto, qint64 accountOto, const ReceiptRecord &r)
{
    const auto text = [](const QString &value) { return value.isEmpty() ? QVariant() : QVariant(value); };
    Statement insert(dataFiles().db->handle(),
        QStringLiteral("INSERT INTO makbuz (defter, carhar, tevkoran, tevkifat, tevkkod, makbuzno, ettn, vkn, dosya) "
                       "VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9)"));
    return insert.bindAll({ ledgerOto, accountOto, r.tevkoran, KeptAmount(r.tevkifat).raw(), text(r.tevkkod),
               text(r.makbuzno), text(r.ettn), text(r.vkn), text(r.dosya) })
        && insert.execute();
}

bool ChangeAccountPosting(qint64 oto, const AccountPosting &posting)
{
    return change(*dataFiles().carhar, oto, posting);
}

bool ChangeLedgerPosting(qint64 oto, const LedgerPosting &posting)
{
    return change(*dataFiles().defter, oto, posting);
}

bool ReadLedgerPosting(qint64 oto, LedgerPosting *p)
{
    Recordset &rs = *dataFiles().defter;
    if (oto <= 0 || !RsSeek(rs, otoIndex, oto))
        return false;
    p->sira = FieldRead(rs, QStringLiteral("sira")).toInt();
    p->tarih = FieldRead(rs, QStringLiteral("tarih")).toDate();
    p->islem = FieldRead(rs, QStringLiteral("islem")).toInt();
    p->evrak = FieldRead(rs, QStringLiteral("evrak")).toString();
    p->cari = FieldRead(rs, QStringLiteral("cari")).toString();
    p->ack = FieldRead(rs, QStringLiteral("ack")).toString();
    p->brut = FieldRead(rs, QStringLiteral("brut")).value<Currency>();
    p->stopaj = FieldRead(rs, QStringLiteral("stopaj")).value<Currency>();
    p->fon = FieldRead(rs, QStringLiteral("fon")).value<Currency>();
    p->kdv = FieldRead(rs, QStringLiteral("kdv")).value<Currency>();
    return true;
}

bool PostingExists(PostingBook book, qint64 oto)
{
    return oto > 0 && RsSeek(table(book), otoIndex, oto);
}

// An imported e-SMM's rows go together, in one transaction: its account row, its ledger row and
// its record; so the document can be imported again. Any other row goes alone.
bool DeletePosting(PostingBook book, qint64 oto)
{
    if (!PostingExists(book, oto))
        return false;
    const bool accounts = book == PostingBook::Accounts;
    Database &db = *dataFiles().db;
    Statement imported(db.handle(),
        QStringLiteral("SELECT carhar, defter FROM makbuz WHERE ettn IS NOT NULL AND %1 = ?1")
            .arg(accounts ? QStringLiteral("carhar") : QStringLiteral("defter")));
    if (!imported.bind(1, oto) || !imported.next())
        return RsDelete(table(book));
    const qint64 ledger = imported.columnInteger(1);
    const qint64 other = accounts ? ledger : imported.columnInteger(0);
    imported.reset();
    Backups::beforeChange();
    if (!db.run(QStringLiteral("BEGIN IMMEDIATE")))
        return false;
    const bool removed = RsDelete(table(book))
        && SqlExecute(
            db, QStringLiteral("DELETE FROM %1 WHERE oto = ?1").arg(accounts ? u"defter" : u"carhar"), { other })
        && SqlExecute(db, QStringLiteral("DELETE FROM makbuz WHERE defter = ?1"), { ledger });
    if (removed && db.run(QStringLiteral("COMMIT")))
        return true;
    db.run(QStringLiteral("ROLLBACK"));
    return false;
}

qint64 StoreAccountPosting(qint64 oto, const AccountPosting &posting)
{
    return store(*dataFiles().carhar, oto, posting);
}

qint64 StoreLedgerPosting(qint64 oto, const LedgerPosting &posting)
{
    return store(*dataFiles().defter, oto, posting);
}
