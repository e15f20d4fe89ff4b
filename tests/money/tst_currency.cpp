#include "money/Currency.h"
#include "money/FormatAmount.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class TestCurrency : public QObject
{
    Q_OBJECT
private slots:
    void fromString_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint64>("raw");
        QTest::newRow("whole") << u"12"_s << qint64(120000);
        QTest::newRow("four decimals") << u"1.2345"_s << qint64(12345);
        QTest::newRow("no leading zero") << u".5"_s << qint64(5000);
        QTest::newRow("negative") << u"-1234.5"_s << qint64(-12345000);
        QTest::newRow("blanks around") << u"  7.25 "_s << qint64(72500);
        QTest::newRow("fifth decimal below half") << u"1.23454"_s << qint64(12345);
        QTest::newRow("fifth decimal above half") << u"1.23456"_s << qint64(12346);
        QTest::newRow("tie to even, down") << u"1.23445"_s << qint64(12344);
        QTest::newRow("tie to even, up") << u"1.23455"_s << qint64(12346);
        QTest::newRow("past the tie") << u"1.234450001"_s << qint64(12345);
        QTest::newRow("largest") << u"922337203685477.5807"_s << std::numeric_limits<qint64>::max();
    }

    void fromString()
    {
        QFETCH(QString, text);
        QFETCH(qint64, raw);
        bool ok = false;
        QCOMPARE(Currency::fromString(text, &ok).raw(), raw);
        QVERIFY(ok);
    }

    void refusesWhatIsNoNumber_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << u""_s;
        QTest::newRow("letters") << u"abc"_s;
        QTest::newRow("two points") << u"1.2.3"_s;
        QTest::newRow("too large") << u"922337203685478"_s;
    }

    void refusesWhatIsNoNumber()
    {
        QFETCH(QString, text);
        bool ok = true;
        QCOMPARE(Currency::fromString(text, &ok).raw(), qint64(0));
        QVERIFY(!ok);
    }

    void fromDouble_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<qint64>("raw");
        QTest::newRow("exact") << 12.5 << qint64(125000);
        QTest::newRow("more decimals") << 1114.285714 << qint64(11142857);
        QTest::newRow("tie to even") << 1.03125 << qint64(10312);
        QTest::newRow("negative tie to even") << -1.03125 << qint64(-10312);
        QTest::newRow("too large") << 1e15 << Currency::overflow().raw();
        QTest::newRow("not a number") << std::nan("") << Currency::overflow().raw();
    }

    void fromDouble()
    {
        QFETCH(double, value);
        QFETCH(qint64, raw);
        QCOMPARE(Currency::fromDouble(value).raw(), raw);
    }

    void sumsThatCannotBeHeldOverflow_data()
    {
        const qint64 max = std::numeric_limits<qint64>::max();
        QTest::addColumn<Currency>("result");
        QTest::addColumn<QString>("text");
        QTest::newRow("largest") << Currency::fromRaw(max - 1) + Currency::fromRaw(1) << u"922337203685477.5807"_s;
        QTest::newRow("past the largest") << Currency::fromRaw(max) + Currency::fromRaw(1) << u"Taşma"_s;
        QTest::newRow("below the smallest") << Currency::fromRaw(-max) - Currency::fromRaw(1) << u"Taşma"_s;
        QTest::newRow("gross and VAT of 900 trillion")
            << Currency::fromUnits(900000000000000) + Currency::fromUnits(162000000000000) << u"Taşma"_s;
        QTest::newRow("an overflow stays one")
            << (Currency::fromRaw(max) + Currency::fromRaw(1)) - Currency::fromUnits(5) << u"Taşma"_s;
        QTest::newRow("negated") << -Currency::overflow() << u"Taşma"_s;
        QTest::newRow("its size") << Currency::overflow().magnitude() << u"Taşma"_s;
        Currency running = Currency::fromRaw(max - 10);
        running += Currency::fromRaw(20);
        running -= Currency::fromRaw(20);
        QTest::newRow("a running total") << running << u"Taşma"_s;
    }

    void sumsThatCannotBeHeldOverflow()
    {
        QFETCH(Currency, result);
        QFETCH(QString, text);
        QCOMPARE(result.toString(), text);
        QCOMPARE(result.isValid(), text != QStringLiteral("Taşma"));
        if (!result.isValid())
            QCOMPARE(FormatAmount(result, 3), text);
    }

    void toString_data()
    {
        QTest::addColumn<qint64>("raw");
        QTest::addColumn<QString>("text");
        QTest::newRow("zero") << qint64(0) << u"0"_s;
        QTest::newRow("whole") << qint64(120000) << u"12"_s;
        QTest::newRow("trailing zeros dropped") << qint64(12345000) << u"1234.5"_s;
        QTest::newRow("small negative") << qint64(-500) << u"-0.05"_s;
        QTest::newRow("smallest") << std::numeric_limits<qint64>::min() + 1 << u"-922337203685477.5807"_s;
        QTest::newRow("the overflow mark") << std::numeric_limits<qint64>::min() << u"Taşma"_s;
    }

    void toString()
    {
        QFETCH(qint64, raw);
        QFETCH(QString, text);
        QCOMPARE(Currency::fromRaw(raw).toString(), text);
    }
};

QTEST_APPLESS_MAIN(TestCurrency)
#include "tst_currency.moc"
