#include "money/AmountConventions.h"
#include "money/RoundAmount.h"

#include <QtTest>

class TestRoundAmount : public QObject
{
    Q_OBJECT
private slots:
    void init() { amountConventions() = AmountConventions(); }
    void rounds_data();
    void rounds();
    void numbersAreConvertedFirst();
};

void TestRoundAmount::rounds_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("amount");
    QTest::addColumn<QString>("rounded");
    QTest::newRow("1.2344") << 2 << "1.2344"
                            << "1.23";
    QTest::newRow("1.2345 tie to even") << 2 << "1.2345"
                                        << "1.24";
    QTest::newRow("1.2346") << 2 << "1.2346"
                            << "1.24";
    QTest::newRow("1.2445 tie to even") << 2 << "1.2445"
                                        << "1.24";
    QTest::newRow("1.2446") << 2 << "1.2446"
                            << "1.25";
    QTest::newRow("0.0045") << 2 << "0.0045"
                            << "0";
    QTest::newRow("0.0046") << 2 << "0.0046"
                            << "0.01";
    QTest::newRow("246.912") << 2 << "246.912"
                             << "246.91";
    QTest::newRow("12.005") << 2 << "12.005"
                            << "12.01";
    QTest::newRow("-1.2351") << 2 << "-1.2351"
                             << "-1.23";
    QTest::newRow("-1.2345") << 2 << "-1.2345"
                             << "-1.23";
    QTest::newRow("no decimals") << 0 << "2.4995"
                                 << "2";
    QTest::newRow("no decimals, up") << 0 << "2.5"
                                     << "3";
    QTest::newRow("three decimals") << 3 << "0.125"
                                    << "0.126";
    QTest::newRow("four decimals keep the added half") << 4 << "1.2344"
                                                       << "1.2349";
}

void TestRoundAmount::rounds()
{
    QFETCH(int, decimals);
    QFETCH(QString, amount);
    QFETCH(QString, rounded);
    amountConventions().tlonda = decimals;
    QCOMPARE(RoundAmount(Currency::fromString(amount)).toString(), rounded);
}

void TestRoundAmount::numbersAreConvertedFirst()
{
    QCOMPARE(RoundAmount(1114.2857142).toString(), QStringLiteral("1114.29"));
    QCOMPARE(RoundAmount(200.0 * 18 / 100).toString(), QStringLiteral("36"));
}

QTEST_APPLESS_MAIN(TestRoundAmount)
#include "tst_roundamount.moc"
