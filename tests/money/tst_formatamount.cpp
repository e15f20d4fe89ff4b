#include "money/AmountConventions.h"
#include "money/FormatAmount.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class TestFormatAmount : public QObject
{
    Q_OBJECT
private slots:
    void init() { amountConventions() = AmountConventions(); }

    void formats_data()
    {
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("group");
        QTest::addColumn<QString>("shown");
        QTest::newRow("zero is empty") << 2 << u"0"_s << 3 << u""_s;
        QTest::newRow("0.00 is empty") << 2 << u"0.00"_s << 3 << u""_s;
        QTest::newRow("not a number is empty") << 2 << u"abc"_s << 3 << u""_s;
        QTest::newRow("no leading zero") << 2 << u"0.5"_s << 3 << u".50"_s;
        QTest::newRow("negative below one") << 2 << u"-0.5"_s << 3 << u"-.50"_s;
        QTest::newRow("grouped") << 2 << u"1234.5"_s << 3 << u"1,234.50"_s;
        QTest::newRow("not grouped") << 2 << u"1234.5"_s << 0 << u"1234.50"_s;
        QTest::newRow("millions") << 2 << u"1234567.89"_s << 3 << u"1,234,567.89"_s;
        QTest::newRow("negative grouped") << 2 << u"-1234.5"_s << 3 << u"-1,234.50"_s;
        QTest::newRow("formatter rounds half up") << 2 << u"2.345"_s << 3 << u"2.35"_s;
        QTest::newRow("rounding carries") << 2 << u"999.995"_s << 3 << u"1,000.00"_s;
        QTest::newRow("no decimals") << 0 << u"1234.5"_s << 3 << u"1,235"_s;
        QTest::newRow("no decimals below half") << 0 << u"0.4"_s << 3 << u"0"_s;
        QTest::newRow("trailing text ignored") << 2 << u"12.5 YTL"_s << 3 << u"12.50"_s;
        QTest::newRow("three decimals") << 3 << u"12"_s << 3 << u"12.000"_s;
        QTest::newRow("four decimals") << 4 << u"-1.2345"_s << 3 << u"-1.2345"_s;
        QTest::newRow("five decimals") << 5 << u"1.2345"_s << 3 << u"1.23450"_s;
        QTest::newRow("rounds to nothing, no sign") << 2 << u"-0.004"_s << 3 << u".00"_s;
        QTest::newRow("largest") << 2 << u"922337203685477.5807"_s << 3 << u"922,337,203,685,477.58"_s;
        QTest::newRow("largest, no decimals") << 0 << u"922337203685477.5807"_s << 3 << u"922,337,203,685,478"_s;
    }

    void formats()
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
};

QTEST_APPLESS_MAIN(TestFormatAmount)
#include "tst_formatamount.moc"
