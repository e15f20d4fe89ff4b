#include "money/AmountConventions.h"
#include "money/FormatAmount.h"

#include <QtTest>

class TestFormatAmount : public QObject
{
    Q_OBJECT
private slots:
    void init() { amountConventions() = AmountConventions(); }
    void formats_data();
    void formats();
};

void TestFormatAmount::formats_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("group");
    QTest::addColumn<QString>("shown");
    QTest::newRow("zero is empty") << 2 << "0" << 3 << "";
    QTest::newRow("0.00 is empty") << 2 << "0.00" << 3 << "";
    QTest::newRow("not a number is empty") << 2 << "abc" << 3 << "";
    QTest::newRow("no leading zero") << 2 << "0.5" << 3 << ".50";
    QTest::newRow("negative below one") << 2 << "-0.5" << 3 << "-.50";
    QTest::newRow("grouped") << 2 << "1234.5" << 3 << "1,234.50";
    QTest::newRow("not grouped") << 2 << "1234.5" << 0 << "1234.50";
    QTest::newRow("millions") << 2 << "1234567.89" << 3 << "1,234,567.89";
    QTest::newRow("negative grouped") << 2 << "-1234.5" << 3 << "-1,234.50";
    QTest::newRow("formatter rounds half up") << 2 << "2.345" << 3 << "2.35";
    QTest::newRow("rounding carries") << 2 << "999.995" << 3 << "1,000.00";
    QTest::newRow("no decimals") << 0 << "1234.5" << 3 << "1,235";
    QTest::newRow("no decimals below half") << 0 << "0.4" << 3 << "0";
    QTest::newRow("trailing text ignored") << 2 << "12.5 YTL" << 3 << "12.50";
    QTest::newRow("three decimals") << 3 << "12" << 3 << "12.000";
    QTest::newRow("four decimals") << 4 << "-1.2345" << 3 << "-1.2345";
    QTest::newRow("five decimals") << 5 << "1.2345" << 3 << "1.23450";
    QTest::newRow("rounds to nothing, no sign") << 2 << "-0.004" << 3 << ".00";
    QTest::newRow("largest") << 2 << "922337203685477.5807" << 3 << "922,337,203,685,477.58";
    QTest::newRow("largest, no decimals") << 0 << "922337203685477.5807" << 3 << "922,337,203,685,478";
}

void TestFormatAmount::formats()
{
    QFETCH(int, decimals);
    QFETCH(QString, text);
    QFETCH(int, group);
    QFETCH(QString, shown);
    amountConventions().tlonda = decimals;
    QCOMPARE(FormatAmount(text, group), shown);
    // An amount shows as its text does.
    static const QRegularExpression amount(QStringLiteral("^-?[0-9.]+$"));
    if (amount.match(text).hasMatch())
        QCOMPARE(FormatAmount(Currency::fromString(text), group), shown);
}

QTEST_APPLESS_MAIN(TestFormatAmount)
#include "tst_formatamount.moc"
