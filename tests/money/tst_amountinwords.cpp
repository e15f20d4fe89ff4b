#include "money/AmountConventions.h"
#include "money/AmountInWords.h"

#include <QtTest>

class TestAmountInWords : public QObject
{
    Q_OBJECT
private slots:
    void init() { amountConventions() = AmountConventions(); }
    void words_data();
    void words();
};

void TestAmountInWords::words_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("amount");
    QTest::addColumn<QString>("words");
    QTest::addColumn<QDate>("date"); // the document's: the lira's name follows it
    const QDate yearEnd2008(2008, 12, 31), newYear2009(2009, 1, 1);
    QTest::newRow("0") << 2 << "0"
                       << " YTL" << yearEnd2008;
    QTest::newRow("0.50") << 2 << "0.50"
                          << " YTL elli YKR" << yearEnd2008;
    QTest::newRow("1") << 2 << "1"
                       << "bir YTL" << yearEnd2008;
    QTest::newRow("11") << 2 << "11"
                        << "onbir YTL" << yearEnd2008;
    QTest::newRow("100") << 2 << "100"
                         << "yüz YTL" << yearEnd2008;
    QTest::newRow("101") << 2 << "101"
                         << "yüzbir YTL" << yearEnd2008;
    QTest::newRow("999") << 2 << "999"
                         << "dokuzyüzdoksandokuz YTL" << yearEnd2008;
    QTest::newRow("1000") << 2 << "1000"
                          << "bin YTL" << yearEnd2008;
    QTest::newRow("1001") << 2 << "1001"
                          << "binbir YTL" << yearEnd2008;
    QTest::newRow("2000") << 2 << "2000"
                          << "ikibin YTL" << yearEnd2008;
    QTest::newRow("101000") << 2 << "101000"
                            << "yüzbirbin YTL" << yearEnd2008;
    QTest::newRow("1000000") << 2 << "1000000"
                             << "birmilyon YTL" << yearEnd2008;
    QTest::newRow("1001000") << 2 << "1001000"
                             << "birmilyonbin YTL" << yearEnd2008;
    QTest::newRow("2001000") << 2 << "2001000"
                             << "ikimilyonbin YTL" << yearEnd2008;
    QTest::newRow("1.01") << 2 << "1.01"
                          << "bir YTL bir YKR" << yearEnd2008;
    QTest::newRow("12.05") << 2 << "12.05"
                           << "oniki YTL beş YKR" << yearEnd2008;
    QTest::newRow("1500.25") << 2 << "1500.25"
                             << "binbeşyüz YTL yirmibeş YKR" << yearEnd2008;
    QTest::newRow("1234567.89") << 2 << "1234567.89"
                                << "birmilyonikiyüzotuzdörtbinbeşyüzaltmışyedi YTL seksendokuz YKR" << yearEnd2008;
    QTest::newRow("milyar") << 2 << "3000000000"
                            << "üçmilyar YTL" << yearEnd2008;
    QTest::newRow("trilyon") << 2 << "922000000000000"
                             << "dokuzyüzyirmiikitrilyon YTL" << yearEnd2008;
    QTest::newRow("rounding carry keeps truncated units") << 2 << "12.999"
                                                          << "oniki YTL" << yearEnd2008;
    QTest::newRow("no decimals drops the fraction") << 0 << "12.05"
                                                    << "oniki YTL" << yearEnd2008;
    QTest::newRow("three decimals spell two") << 3 << "0.125"
                                              << " YTL oniki YKR" << yearEnd2008;
    QTest::newRow("negative by magnitude") << 2 << "-12.05"
                                           << "oniki YTL beş YKR" << yearEnd2008;
    QTest::newRow("2009: zero") << 2 << "0"
                                << " TL" << newYear2009;
    QTest::newRow("2009: fraction") << 2 << "0.50"
                                    << " TL elli Kr" << newYear2009;
    QTest::newRow("2009: 1.01") << 2 << "1.01"
                                << "bir TL bir Kr" << newYear2009;
    QTest::newRow("2026: thousands and kuruş") << 2 << "1500.25"
                                               << "binbeşyüz TL yirmibeş Kr" << QDate(2026, 11, 23);
    QTest::newRow("2005: the first day of YTL") << 2 << "1000.50"
                                                << "bin YTL elli YKR" << QDate(2005, 1, 1);
    QTest::newRow("before 2005 reads as YTL") << 2 << "12.05"
                                              << "oniki YTL beş YKR" << QDate(2004, 12, 31);
    QTest::newRow("no date: today's lira") << 2 << "1"
                                           << "bir TL" << QDate();
}

void TestAmountInWords::words()
{
    QFETCH(int, decimals);
    QFETCH(QString, amount);
    QFETCH(QString, words);
    QFETCH(QDate, date);
    amountConventions().tlonda = decimals;
    QCOMPARE(AmountInWords(Currency::fromString(amount), date), words);
}

QTEST_APPLESS_MAIN(TestAmountInWords)
#include "tst_amountinwords.moc"
