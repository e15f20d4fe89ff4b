#include "books/AccessLayer.h"
#include "books/DataFiles.h"
#include "books/Postings.h"
#include "testsupport/BooksFixture.h"
#include "testsupport/QueryTexts.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

AccountPosting cash(const QString &code, qint64 units, int ba = 1)
{
    return { code, QDate(2026, 11, 16), 1, QStringLiteral("E1"), QStringLiteral("Nakit"), ba,
        Currency::fromUnits(units) };
}

// Stored amounts are ten-thousandths.
QStringList accountRows()
{
    return StoredRows(u"oto, kod, islem, ba, tutar FROM carhar ORDER BY oto"_s, u':');
}

} // namespace

class TestPostings : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_books = std::make_unique<BooksFixture>();
        QVERIFY(m_books->isReady());
    }

    void cleanup() { m_books.reset(); }

    void addAnswersTheNewKey()
    {
        QCOMPARE(AddAccountPosting(cash(QStringLiteral("K1"), 100)), 1);
        QCOMPARE(AddAccountPosting(cash(QStringLiteral("K2"), 200, 0)), 2);
        QVERIFY(DeletePosting(PostingBook::Accounts, 2));
        QCOMPARE(AddAccountPosting(cash(QStringLiteral("K3"), 300)), 3); // keys are never used again
        QCOMPARE(accountRows(), QStringList({ "1:K1:1:1:1000000", "3:K3:1:1:3000000" }));
    }

    void newKeyAfterASeekThatFoundNothing()
    {
        AddAccountPosting(cash(QStringLiteral("K1"), 100));
        AddAccountPosting(cash(QStringLiteral("K1"), 200));
        QVERIFY(!RsSeek(*dataFiles().carhar, QStringLiteral("oto"), 99)); // "not found, add new"
        QCOMPARE(AddAccountPosting(cash(QStringLiteral("K2"), 300)), 3);
    }

    void changeAndDeleteByKey()
    {
        AddAccountPosting(cash(QStringLiteral("K1"), 100));
        AddAccountPosting(cash(QStringLiteral("K2"), 200));
        QVERIFY(ChangeAccountPosting(1, cash(QStringLiteral("K9"), 150, 0)));
        QVERIFY(!ChangeAccountPosting(7, cash(QStringLiteral("K7"), 1)));
        QVERIFY(!ChangeAccountPosting(0, cash(QStringLiteral("K0"), 1)));
        QVERIFY(!DeletePosting(PostingBook::Accounts, 7));
        QCOMPARE(accountRows(), QStringList({ "1:K9:1:0:1500000", "2:K2:1:1:2000000" }));
        QVERIFY(DeletePosting(PostingBook::Accounts, 1));
        QCOMPARE(accountRows(), QStringList({ "2:K2:1:1:2000000" }));
    }

    void storeAddsOrChanges()
    {
        const qint64 first = StoreAccountPosting(0, cash(QStringLiteral("K1"), 100));
        QCOMPARE(first, 1);
        QCOMPARE(StoreAccountPosting(first, cash(QStringLiteral("K1"), 120)), first); // a second save edits
        QCOMPARE(StoreAccountPosting(42, cash(QStringLiteral("K2"), 5)), 2); // a key that is gone: added
        QCOMPARE(accountRows(), QStringList({ "1:K1:1:1:1200000", "2:K2:1:1:50000" }));
    }

    void ledgerRows()
    {
        LedgerPosting row { 0, QDate(2026, 3, 10), 0, QStringLiteral("500"), QStringLiteral("K1"),
            QStringLiteral("Danışma"), Currency::fromUnits(1000), Currency::fromUnits(200), Currency::fromUnits(10),
            Currency::fromUnits(180) };
        const qint64 oto = AddLedgerPosting(row);
        QCOMPARE(oto, 1);
        row.kdv = Currency::fromUnits(200);
        QVERIFY(ChangeLedgerPosting(oto, row));
        QCOMPARE(StoredRows(u"tarih, evrak, cari, ack, brut, stopaj, fon, kdv FROM defter"_s, u':'),
            QStringList { "46091:500:K1:Danışma:10000000:2000000:100000:2000000" });
        QCOMPARE(StoreLedgerPosting(oto, row), oto);
        QVERIFY(DeletePosting(PostingBook::Ledger, oto));
        QVERIFY(!DeletePosting(PostingBook::Ledger, oto));
    }

private:
    std::unique_ptr<BooksFixture> m_books;
};

QTEST_GUILESS_MAIN(TestPostings)
#include "tst_postings.moc"
