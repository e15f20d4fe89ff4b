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
    QTest::newRow("0") << 2 << "0"
                       << " YTL";
    QTest::newRow("0.50") << 2 << "0.50"
                          << " YTL elli YKR";
    QTest::newRow("1") << 2 << "1"
                       << "bir YTL";
    QTest::newRow("11") << 2 << "11"
                        << "onbir YTL";
    QTest::newRow("100") << 2 << "100"
                         << "yüz YTL";
    QTest::newRow("101") << 2 << "101"
                         << "yüzbir YTL";
    QTest::newRow("999") << 2 << "999"
                         << "dokuzyüzdoksandokuz YTL";
    QTest::newRow("1000") << 2 << "1000"
                          << "bin YTL";
    QTest::newRow("1001") << 2 << "1001"
                          << "binbir YTL";
    QTest::newRow("2000") << 2 << "2000"
                          << "ikibin YTL";
    QTest::newRow("101000") << 2 << "101000"
                            << "yüzbirbin YTL";
    QTest::newRow("1000000") << 2 << "1000000"
                             << "birmilyon YTL";
    QTest::newRow("1001000") << 2 << "1001000"
                             << "birmilyonbin YTL";
    QTest::newRow("2001000") << 2 << "2001000"
                             << "ikimilyonbin YTL";
    QTest::newRow("1.01") << 2 << "1.01"
                          << "bir YTL bir YKR";
    QTest::newRow("12.05") << 2 << "12.05"
                           << "oniki YTL beş YKR";
    QTest::newRow("1500.25") << 2 << "1500.25"
                             << "binbeşyüz YTL yirmibeş YKR";
    QTest::newRow("1234567.89") << 2 << "1234567.89"
                                << "birmilyonikiyüzotuzdörtbinbeşyüzaltmışyedi YTL seksendokuz YKR";
    QTest::newRow("milyar") << 2 << "3000000000"
                            << "üçmilyar YTL";
    QTest::newRow("trilyon") << 2 << "922000000000000"
                             << "dokuzyüzyirmiikitrilyon YTL";
    QTest::newRow("rounding carry keeps truncated units") << 2 << "12.999"
                                                          << "oniki YTL";
    QTest::newRow("no decimals drops the fraction") << 0 << "12.05"
                                                    << "oniki YTL";
    QTest::newRow("three decimals spell two") << 3 << "0.125"
                                              << " YTL oniki YKR";
    QTest::newRow("negative by magnitude") << 2 << "-12.05"
                                           << "oniki YTL beş YKR";
}

void TestAmountInWords::words()
{
    QFETCH(int, decimals);
    QFETCH(QString, amount);
    QFETCH(QString, words);
    amountConventions().tlonda = decimals;
    QCOMPARE(AmountInWords(Currency::fromString(amount)), words);
}

QTEST_APPLESS_MAIN(TestAmountInWords)
#include "tst_amountinwords.moc"
