#include "money/AmountConventions.h"
#include "money/RoundAmount.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class TestRoundAmount : public QObject
{
    Q_OBJECT
private slots:
    void init() { amountConventions() = AmountConventions(); }

    void rounds_data()
    {
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QString>("rounded");
        QTest::newRow("1.2344") << 2 << u"1.2344"_s << u"1.23"_s;
        QTest::newRow("1.2345 tie to even") << 2 << u"1.2345"_s << u"1.24"_s;
        QTest::newRow("1.2346") << 2 << u"1.2346"_s << u"1.24"_s;
        QTest::newRow("1.2445 tie to even") << 2 << u"1.2445"_s << u"1.24"_s;
        QTest::newRow("1.2446") << 2 << u"1.2446"_s << u"1.25"_s;
        QTest::newRow("0.0045") << 2 << u"0.0045"_s << u"0"_s;
        QTest::newRow("0.0046") << 2 << u"0.0046"_s << u"0.01"_s;
        QTest::newRow("246.912") << 2 << u"246.912"_s << u"246.91"_s;
        QTest::newRow("12.005") << 2 << u"12.005"_s << u"12.01"_s;
        QTest::newRow("-1.2351") << 2 << u"-1.2351"_s << u"-1.23"_s;
        QTest::newRow("-1.2345") << 2 << u"-1.2345"_s << u"-1.23"_s;
        QTest::newRow("no decimals") << 0 << u"2.4995"_s << u"2"_s;
        QTest::newRow("no decimals, up") << 0 << u"2.5"_s << u"3"_s;
        QTest::newRow("three decimals") << 3 << u"0.125"_s << u"0.126"_s;
        QTest::newRow("four decimals keep the added half") << 4 << u"1.2344"_s << u"1.2349"_s;
    }

    void rounds()
    {
        QFETCH(int, decimals);
        QFETCH(QString, amount);
        QFETCH(QString, rounded);
        amountConventions().tlonda = decimals;
        QCOMPARE(RoundAmount(Currency::fromString(amount)).toString(), rounded);
    }

    void numbersAreConvertedFirst()
    {
        QCOMPARE(RoundAmount(1114.2857142).toString(), QStringLiteral("1114.29"));
        QCOMPARE(RoundAmount(200.0 * 18 / 100).toString(), QStringLiteral("36"));
    }
};

QTEST_APPLESS_MAIN(TestRoundAmount)
#include "tst_roundamount.moc"
