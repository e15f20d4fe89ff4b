#include "money/AmountConventions.h"
#include "money/AmountInWords.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class TestAmountInWords : public QObject
{
    Q_OBJECT
private slots:
    void init() { amountConventions() = AmountConventions(); }

    void words_data()
    {
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QString>("words");
        QTest::addColumn<QDate>("date"); // the document's: the lira's name follows it
        const QDate yearEnd2008(2008, 12, 31), newYear2009(2009, 1, 1);
        QTest::newRow("0") << 2 << u"0"_s << u" YTL"_s << yearEnd2008;
        QTest::newRow("0.50") << 2 << u"0.50"_s << u" YTL elli YKR"_s << yearEnd2008;
        QTest::newRow("1") << 2 << u"1"_s << u"bir YTL"_s << yearEnd2008;
        QTest::newRow("11") << 2 << u"11"_s << u"onbir YTL"_s << yearEnd2008;
        QTest::newRow("100") << 2 << u"100"_s << u"yüz YTL"_s << yearEnd2008;
        QTest::newRow("101") << 2 << u"101"_s << u"yüzbir YTL"_s << yearEnd2008;
        QTest::newRow("999") << 2 << u"999"_s << u"dokuzyüzdoksandokuz YTL"_s << yearEnd2008;
        QTest::newRow("1000") << 2 << u"1000"_s << u"bin YTL"_s << yearEnd2008;
        QTest::newRow("1001") << 2 << u"1001"_s << u"binbir YTL"_s << yearEnd2008;
        QTest::newRow("2000") << 2 << u"2000"_s << u"ikibin YTL"_s << yearEnd2008;
        QTest::newRow("101000") << 2 << u"101000"_s << u"yüzbirbin YTL"_s << yearEnd2008;
        QTest::newRow("1000000") << 2 << u"1000000"_s << u"birmilyon YTL"_s << yearEnd2008;
        QTest::newRow("1001000") << 2 << u"1001000"_s << u"birmilyonbin YTL"_s << yearEnd2008;
        QTest::newRow("2001000") << 2 << u"2001000"_s << u"ikimilyonbin YTL"_s << yearEnd2008;
        QTest::newRow("1.01") << 2 << u"1.01"_s << u"bir YTL bir YKR"_s << yearEnd2008;
        QTest::newRow("12.05") << 2 << u"12.05"_s << u"oniki YTL beş YKR"_s << yearEnd2008;
        QTest::newRow("1500.25") << 2 << u"1500.25"_s << u"binbeşyüz YTL yirmibeş YKR"_s << yearEnd2008;
        QTest::newRow("1234567.89") << 2 << u"1234567.89"_s
                                    << u"birmilyonikiyüzotuzdörtbinbeşyüzaltmışyedi YTL seksendokuz YKR"_s
                                    << yearEnd2008;
        QTest::newRow("milyar") << 2 << u"3000000000"_s << u"üçmilyar YTL"_s << yearEnd2008;
        QTest::newRow("trilyon") << 2 << u"922000000000000"_s << u"dokuzyüzyirmiikitrilyon YTL"_s << yearEnd2008;
        QTest::newRow("rounding carry keeps truncated units") << 2 << u"12.999"_s << u"oniki YTL"_s << yearEnd2008;
        QTest::newRow("no decimals drops the fraction") << 0 << u"12.05"_s << u"oniki YTL"_s << yearEnd2008;
        QTest::newRow("three decimals spell two") << 3 << u"0.125"_s << u" YTL oniki YKR"_s << yearEnd2008;
        QTest::newRow("negative by magnitude") << 2 << u"-12.05"_s << u"oniki YTL beş YKR"_s << yearEnd2008;
        QTest::newRow("2009: zero") << 2 << u"0"_s << u" TL"_s << newYear2009;
        QTest::newRow("2009: fraction") << 2 << u"0.50"_s << u" TL elli Kr"_s << newYear2009;
        QTest::newRow("2009: 1.01") << 2 << u"1.01"_s << u"bir TL bir Kr"_s << newYear2009;
        QTest::newRow("2026: thousands and kuruş")
            << 2 << u"1500.25"_s << u"binbeşyüz TL yirmibeş Kr"_s << QDate(2026, 11, 23);
        QTest::newRow("2005: the first day of YTL") << 2 << u"1000.50"_s << u"bin YTL elli YKR"_s << QDate(2005, 1, 1);
        QTest::newRow("before 2005 reads as YTL") << 2 << u"12.05"_s << u"oniki YTL beş YKR"_s << QDate(2004, 12, 31);
        QTest::newRow("no date: today's lira") << 2 << u"1"_s << u"bir TL"_s << QDate();
    }

    void words()
    {
        QFETCH(int, decimals);
        QFETCH(QString, amount);
        QFETCH(QString, words);
        QFETCH(QDate, date);
        amountConventions().tlonda = decimals;
        QCOMPARE(AmountInWords(Currency::fromString(amount), date), words);
    }
};

QTEST_APPLESS_MAIN(TestAmountInWords)
#include "tst_amountinwords.moc"
