#include "books/AccessLayer.h"
#include "books/DataFiles.h"
#include "money/Currency.h"
#include "money/DayNumber.h"
#include "testsupport/BooksFixture.h"
#include "testsupport/QueryTexts.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

Recordset &carkart()
{
    return *dataFiles().carkart;
}

Recordset &carhar()
{
    return *dataFiles().carhar;
}

bool addCard(const QString &code, const QString &title = QString())
{
    RsAddNew(carkart());
    FieldWrite(carkart(), QStringLiteral("kod"), code);
    FieldWrite(carkart(), QStringLiteral("unv"), title);
    return RsUpdate(carkart());
}

bool addTransaction(const QString &code, QDate date, int side, const QString &amount)
{
    RsAddNew(carhar());
    FieldWrite(carhar(), QStringLiteral("kod"), code);
    FieldWrite(carhar(), QStringLiteral("tarih"), date);
    FieldWrite(carhar(), QStringLiteral("ba"), side);
    FieldWrite(carhar(), QStringLiteral("tutar"), QVariant::fromValue(Currency::fromString(amount)));
    return RsUpdate(carhar());
}

} // namespace

class TestAccessLayer : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_books = std::make_unique<BooksFixture>();
        QVERIFY(m_books->isReady());
    }

    void cleanup() { m_books.reset(); }

    void seekFindsAndMisses()
    {
        QVERIFY(addCard(QStringLiteral("M001"), QStringLiteral("Ahmet")));
        QVERIFY(addCard(QStringLiteral("M002"), QStringLiteral("Mehmet")));
        QVERIFY(RsSeek(carkart(), QStringLiteral("kod"), QStringLiteral("M002")));
        QCOMPARE(FieldRead(carkart(), QStringLiteral("unv")).toString(), QStringLiteral("Mehmet"));
        QVERIFY(CariExists(QStringLiteral("M001")));
        QCOMPARE(FieldRead(carkart(), QStringLiteral("unv")).toString(), QStringLiteral("Ahmet"));
        QVERIFY(!CariExists(QStringLiteral("M003")));
        QVERIFY(!RsSeek(carkart(), QStringLiteral("yok"), QStringLiteral("M001")));
        QCOMPARE(RsCount(carkart()), qint64(2));
    }

    void noMatchBlocksFirstUntilASeekSucceeds()
    {
        QVERIFY(addCard(QStringLiteral("A")));
        QVERIFY(addCard(QStringLiteral("B")));
        QVERIFY(!RsSeek(carkart(), QStringLiteral("kod"), QStringLiteral("Z")));
        QVERIFY(!RsFirst(carkart()));
        QVERIFY(!RsLast(carkart()));
        QVERIFY(RsSeek(carkart(), QStringLiteral("kod"), QStringLiteral("B")));
        QVERIFY(RsFirst(carkart()));
        QCOMPARE(FieldRead(carkart(), QStringLiteral("kod")).toString(), QStringLiteral("A"));
    }

    void readsReplaceNull_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QVariant>("expected");
        QTest::newRow("text") << u"ack"_s << QVariant(QString());
        QTest::newRow("date") << u"tarih"_s << QVariant(QString());
        QTest::newRow("byte") << u"islem"_s << QVariant(0);
        QTest::newRow("currency") << u"tutar"_s << QVariant::fromValue(Currency());
    }

    void readsReplaceNull()
    {
        QFETCH(QString, field);
        QFETCH(QVariant, expected);
        RsAddNew(carhar());
        FieldWrite(carhar(), QStringLiteral("kod"), QStringLiteral("A"));
        QVERIFY(RsUpdate(carhar()));
        QVERIFY(RsFirst(carhar()));
        const QVariant value = FieldRead(carhar(), field);
        QCOMPARE(value.userType(), expected.userType());
        QCOMPARE(value, expected);
    }

    void failedReadIsLongOne()
    {
        QCOMPARE(FieldRead(carkart(), QStringLiteral("kod")), QVariant(qint32(1))); // empty table
        QVERIFY(addCard(QStringLiteral("A")));
        QVERIFY(RsFirst(carkart()));
        QCOMPARE(FieldRead(carkart(), QStringLiteral("nosuchfield")), QVariant(qint32(1)));
        QVERIFY(!RsSeek(carkart(), QStringLiteral("kod"), QStringLiteral("Z")));
        QCOMPARE(FieldRead(carkart(), QStringLiteral("kod")), QVariant(qint32(1)));
    }

    void writesOutsideTheTypeAreRefused_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("stored");
        QTest::newRow("text at its size") << u"unv"_s << QVariant(QString(50, u'ş')) << true;
        QTest::newRow("text past its size") << u"unv"_s << QVariant(QString(51, u'ş')) << false;
        QTest::newRow("byte 255") << u"tip"_s << QVariant(255) << true;
        QTest::newRow("byte 256") << u"tip"_s << QVariant(256) << false;
        QTest::newRow("byte -1") << u"tip"_s << QVariant(-1) << false;
        QTest::newRow("required key missing") << u"kod"_s << QVariant() << false;
        QTest::newRow("key past its size") << u"kod"_s << QVariant(QStringLiteral("123456789")) << false;
        QTest::newRow("a NUL hiding 10,000 characters")
            << u"kod"_s << QVariant(QStringLiteral("K") + QChar(0) + QString(10000, u'x')) << false;
        QTest::newRow("a NUL within the size") << u"unv"_s << QVariant(QStringLiteral("a") + QChar(0) + u'b') << false;
        QTest::newRow("the largest amount")
            << u"ucret"_s << QVariant::fromValue(Currency::fromRaw(9223372036854775807)) << true;
        QTest::newRow("an amount that overflowed") << u"ucret"_s << QVariant::fromValue(Currency::overflow()) << false;
        QTest::newRow("a NUL at the end of a note") << u"not1"_s << QVariant(QStringLiteral("a") + QChar(0)) << false;
    }

    void writesOutsideTheTypeAreRefused()
    {
        QFETCH(QString, field);
        QFETCH(QVariant, value);
        QFETCH(bool, stored);
        RsAddNew(carkart());
        FieldWrite(carkart(), QStringLiteral("kod"), QStringLiteral("K1"));
        FieldWrite(carkart(), field, value);
        QCOMPARE(RsUpdate(carkart()), stored);
        QCOMPARE(RsCount(carkart()), qint64(stored ? 1 : 0));
    }

    void autoNumbersFollowInsertionAndAreNeverReused()
    {
        for (int i = 0; i < 3; ++i)
            QVERIFY(addTransaction(QStringLiteral("A"), QDate(2026, 1, 1), 0, QStringLiteral("1")));
        QVERIFY(RsLast(carhar()));
        QCOMPARE(FieldRead(carhar(), QStringLiteral("oto")).toInt(), 3);
        QVERIFY(RsDelete(carhar()));
        QVERIFY(addTransaction(QStringLiteral("A"), QDate(2026, 1, 1), 0, QStringLiteral("1")));
        QCOMPARE(QueryTexts(QStringLiteral("SELECT oto FROM carhar ORDER BY oto"), QStringLiteral("oto")),
            QStringList({ QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("4") }));
        QVERIFY(RsSeek(carhar(), QStringLiteral("oto"), 2));
        QVERIFY(RsNext(carhar()));
        QCOMPARE(FieldRead(carhar(), QStringLiteral("oto")).toInt(), 4);
    }

    void turkishOrder()
    {
        const QStringList names = { QStringLiteral("Çiçek"), QStringLiteral("Cem"), QStringLiteral("İsmail"),
            QStringLiteral("Işık"), QStringLiteral("Ömer"), QStringLiteral("Oya") };
        const QStringList sorted = { QStringLiteral("Cem"), QStringLiteral("Çiçek"), QStringLiteral("Işık"),
            QStringLiteral("İsmail"), QStringLiteral("Oya"), QStringLiteral("Ömer") };
        for (const QString &name : names)
            QVERIFY(addCard(name, name));
        QCOMPARE(QueryTexts(QStringLiteral("SELECT unv FROM carkart ORDER BY unv COLLATE TR"), QStringLiteral("unv")),
            sorted);

        QVERIFY(RsSeek(carkart(), QStringLiteral("kod"), QStringLiteral("Cem")));
        QStringList walked;
        do
            walked << FieldRead(carkart(), QStringLiteral("kod")).toString();
        while (RsNext(carkart()));
        QCOMPARE(walked, sorted);
        QCOMPARE(
            QueryTexts(QStringLiteral(
                           "SELECT kod FROM carkart WHERE kod COLLATE TR BETWEEN ?1 AND ?2 ORDER BY kod COLLATE TR"),
                QStringLiteral("kod"), { QStringLiteral("C"), QStringLiteral("J") }),
            sorted.mid(0, 4));
    }

    void turkishCaseFolding_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("sought");
        QTest::addColumn<bool>("found");
        QTest::newRow("dotless ı finds I") << u"IŞIK"_s << u"ışık"_s << true;
        QTest::newRow("i finds İ") << u"İSMAİL"_s << u"ismail"_s << true;
        QTest::newRow("i does not find I") << u"IRMAK"_s << u"irmak"_s << false;
        QTest::newRow("c does not find ç") << u"ÇAM"_s << u"cam"_s << false;
        QTest::newRow("ß, whose capital is SS, is sought as it stands") << u"AS"_s << u"aß"_s << false;
    }

    void turkishCaseFolding()
    {
        QFETCH(QString, stored);
        QFETCH(QString, sought);
        QFETCH(bool, found);
        QVERIFY(addCard(stored));
        QCOMPARE(CariExists(sought), found);
        QCOMPARE(addCard(sought), !found); // the key is unique in the same folded sense
    }

    void movesStopAtBothEnds()
    {
        QVERIFY(addCard(QStringLiteral("A")));
        QVERIFY(addCard(QStringLiteral("B")));
        QVERIFY(RsSeek(carkart(), QStringLiteral("kod"), QStringLiteral("A")));
        QVERIFY(!RsPrev(carkart()));
        QVERIFY(!RsPrev(carkart())); // already before the first record
        QVERIFY(RsNext(carkart()));
        QCOMPARE(FieldRead(carkart(), QStringLiteral("kod")).toString(), QStringLiteral("A"));
        QVERIFY(RsNext(carkart()));
        QVERIFY(!RsNext(carkart()));
        QVERIFY(RsEof(carkart()));
        QVERIFY(!RsNext(carkart()));
        QVERIFY(RsPrev(carkart()));
        QCOMPARE(FieldRead(carkart(), QStringLiteral("kod")).toString(), QStringLiteral("B"));
    }

    void editAndDelete()
    {
        for (const char16_t *code : { u"A", u"B", u"C" })
            QVERIFY(addCard(QString::fromUtf16(code)));
        QVERIFY(RsSeek(carkart(), QStringLiteral("kod"), QStringLiteral("B")));
        QVERIFY(RsEdit(carkart()));
        FieldWrite(carkart(), QStringLiteral("unv"), QStringLiteral("Bora"));
        QCOMPARE(FieldRead(carkart(), QStringLiteral("unv")).toString(), QStringLiteral("Bora"));
        QVERIFY(RsUpdate(carkart()));
        QVERIFY(CariExists(QStringLiteral("B")));
        QCOMPARE(FieldRead(carkart(), QStringLiteral("unv")).toString(), QStringLiteral("Bora"));

        QVERIFY(RsDelete(carkart()));
        QCOMPARE(FieldRead(carkart(), QStringLiteral("kod")), QVariant(qint32(1)));
        QVERIFY(RsNext(carkart()));
        QCOMPARE(FieldRead(carkart(), QStringLiteral("kod")).toString(), QStringLiteral("C"));
        QVERIFY(!CariExists(QStringLiteral("B")));
        QVERIFY(!RsUpdate(carkart())); // nothing pending
    }

    void quotesInTextsAreJustText()
    {
        const QString title = QStringLiteral("O'Neil'; DROP TABLE carkart; --");
        QVERIFY(addCard(QStringLiteral("Q'1"), title));
        QVERIFY(CariExists(QStringLiteral("Q'1")));
        QCOMPARE(QueryTexts(QStringLiteral("SELECT kod FROM carkart WHERE unv = ?1"), QStringLiteral("kod"), { title }),
            QStringList { QStringLiteral("Q'1") });
        QVERIFY(SqlExecute(
            *dataFiles().db, QStringLiteral("DELETE FROM carkart WHERE kod = ?1"), { QStringLiteral("Q'1") }));
        QCOMPARE(RsCount(carkart()), qint64(0));
        QVERIFY(m_books->messages().entries().isEmpty());
    }

    // A query held whole (QueryOpen) and one walked row by row (QueryWalk) answer alike.
    void queriesReportEmptyAndBadSql_data()
    {
        QTest::addColumn<bool>("walked");
        QTest::newRow("held") << false;
        QTest::newRow("walked") << true;
    }

    void queriesReportEmptyAndBadSql()
    {
        std::unique_ptr<Recordset> rows;
        QVERIFY(!query(rows, QStringLiteral("SELECT * FROM carkart")));
        QVERIFY(m_books->messages().entries().isEmpty());
        QVERIFY(!query(rows, QStringLiteral("SELECT * FROM nowhere")));
        QCOMPARE(m_books->messages().texts(), QStringList { QStringLiteral("Sql Rapor Yaratılamıyor") });
        QCOMPARE(m_books->messages().entries().first().kind, Message::Kind::Exclamation);
        QVERIFY(!SqlExecute(*dataFiles().db, QStringLiteral("DELETE FROM nowhere")));

        // The engine fails on the second row: a held query shows nothing, a walk ends there.
        QVERIFY(addCard(QStringLiteral("D1")));
        QVERIFY(addCard(QStringLiteral("D2")));
        QFETCH(bool, walked);
        const bool opened = query(rows,
            QStringLiteral("SELECT CASE WHEN kod = 'D2' THEN abs(-9223372036854775807 - 1) END AS x FROM carkart "
                           "ORDER BY kod"));
        QCOMPARE(opened, walked);
        if (walked) {
            QVERIFY(!RsEof(*rows));
            RsNext(*rows);
            QVERIFY(RsEof(*rows));
        }
        QCOMPARE(m_books->messages().texts().size(), 2);
    }

    void sqlOnDayNumbersAndAmounts_data() { queriesReportEmptyAndBadSql_data(); }

    void sqlOnDayNumbersAndAmounts()
    {
        QVERIFY(addTransaction(QStringLiteral("A"), QDate(2025, 12, 31), 0, QStringLiteral("0.0001")));
        QVERIFY(addTransaction(QStringLiteral("A"), QDate(2026, 1, 1), 0, QStringLiteral("1000.1234")));
        QVERIFY(addTransaction(QStringLiteral("A"), QDate(2026, 2, 1), 1, QStringLiteral("250.5")));
        std::unique_ptr<Recordset> rows;
        QVERIFY(query(rows,
            QStringLiteral("SELECT sum(tutar * (ba = 0)) AS borc, sum(tutar * (ba <> 0)) AS alacak, "
                           "count(*) AS adet FROM carhar WHERE year(tarih) = 2026 AND tarih >= ?1"),
            { DayNumber(QDate(2026, 1, 1)) }));
        QCOMPARE(FieldRead(*rows, QStringLiteral("borc")).toLongLong(), qint64(10001234));
        QCOMPARE(FieldRead(*rows, QStringLiteral("alacak")).toLongLong(), qint64(2505000));
        QCOMPARE(FieldRead(*rows, QStringLiteral("adet")).toLongLong(), qint64(2));

        QVERIFY(query(rows, QStringLiteral("SELECT sum(tutar) AS toplam FROM carhar WHERE kod = 'X'")));
        QCOMPARE(FieldRead(*rows, QStringLiteral("toplam")), QVariant(0)); // a sum over no rows reads 0

        QVERIFY(query(rows, QStringLiteral("SELECT * FROM carhar ORDER BY oto")));
        QVERIFY(!RsEdit(*rows)); // listings are read-only
        QList<QDate> dates;
        QList<qint64> amounts;
        for (; !RsEof(*rows); RsNext(*rows)) {
            dates << FieldRead(*rows, QStringLiteral("tarih")).toDate();
            amounts << FieldRead(*rows, QStringLiteral("tutar")).value<Currency>().raw();
        }
        QCOMPARE(dates, QList<QDate>({ QDate(2025, 12, 31), QDate(2026, 1, 1), QDate(2026, 2, 1) }));
        QCOMPARE(amounts, QList<qint64>({ 1, 10001234, 2505000 }));
    }

    void storedRowIsVisibleToAnotherConnectionAtOnce()
    {
        QVERIFY(addCard(QStringLiteral("D1")));
        std::unique_ptr<Database> other;
        QVERIFY(DbOpen(other, m_books->dataFile()));
        std::unique_ptr<Recordset> rows;
        QVERIFY(QueryOpen(*other, rows, QStringLiteral("SELECT kod FROM carkart")));
        QCOMPARE(FieldRead(*rows, QStringLiteral("kod")).toString(), QStringLiteral("D1"));
    }

private:
    // Opens a query as the row's "walked" says.

    static bool query(std::unique_ptr<Recordset> &rows, const QString &sql, const QVariantList &values = {})
    {
        QFETCH(bool, walked);
        return (walked ? QueryWalk : QueryOpen)(*dataFiles().db, rows, sql, values);
    }

    std::unique_ptr<BooksFixture> m_books;
};

QTEST_GUILESS_MAIN(TestAccessLayer)
#include "tst_accesslayer.moc"
