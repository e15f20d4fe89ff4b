#include "money/AmountConventions.h"
#include "money/ReceiptCalculation.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class TestReceiptCalculation : public QObject
{
    Q_OBJECT
private slots:
    void init() { amountConventions() = AmountConventions(); }

    void amounts_data()
    {
        QTest::addColumn<bool>("fromNet");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("withhold");
        QTest::addColumn<bool>("levy");
        QTest::addColumn<QStringList>("expected"); // gross, stopaj, fon, net, kdv, total
        QTest::newRow("gross, both ticked")
            << false << u"1000"_s << true << true << QStringList { "1000", "200", "20", "780", "180", "960" };
        QTest::newRow("gross, withholding only")
            << false << u"1000"_s << true << false << QStringList { "1000", "200", "0", "800", "180", "980" };
        QTest::newRow("net, both ticked") << true << u"780"_s << true << true
                                          << QStringList { "1114.2857", "222.86", "22.29", "780", "200.57", "980.57" };
        QTest::newRow("levy without withholding")
            << false << u"1000"_s << false << true << QStringList { "1000", "0", "0", "1000", "180", "1180" };
        QTest::newRow("nothing ticked") << false << u"333.33"_s << false << false
                                        << QStringList { "333.33", "0", "0", "333.33", "60", "393.33" };
    }

    void amounts()
    {
        QFETCH(bool, fromNet);
        QFETCH(QString, typed);
        QFETCH(bool, withhold);
        QFETCH(bool, levy);
        QFETCH(QStringList, expected);
        const ReceiptRates rates { 20.0f, 10.0f, 18.0f };
        const Currency amount = Currency::fromString(typed);
        const ReceiptAmounts a
            = fromNet ? FromNet(amount, rates, withhold, levy) : FromGross(amount, rates, withhold, levy);
        const QStringList shown = { a.gross.toString(), a.stopaj.toString(), a.fon.toString(), a.net.toString(),
            a.kdv.toString(), (a.net + a.kdv).toString() };
        QCOMPARE(shown, expected);
    }
};

QTEST_APPLESS_MAIN(TestReceiptCalculation)
#include "tst_receiptcalculation.moc"
