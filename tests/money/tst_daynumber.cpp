#include "money/DayNumber.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class TestDayNumber : public QObject
{
    Q_OBJECT
private slots:
    void dayNumbersCountFromTheOrigin_data()
    {
        QTest::addColumn<QDate>("date");
        QTest::addColumn<qint64>("day");
        QTest::newRow("origin") << QDate(1899, 12, 30) << qint64(0);
        QTest::newRow("day 1") << QDate(1899, 12, 31) << qint64(1);
        QTest::newRow("first of 1900") << QDate(1900, 1, 1) << qint64(2);
        QTest::newRow("2026") << QDate(2026, 11, 16) << qint64(46342);
    }

    void dayNumbersCountFromTheOrigin()
    {
        QFETCH(QDate, date);
        QFETCH(qint64, day);
        QCOMPARE(DayNumber(date), day);
        QCOMPARE(DateFromDayNumber(day), date);
    }

    void formattedDates_data()
    {
        QTest::addColumn<QDate>("date");
        QTest::addColumn<QString>("text");
        QTest::newRow("leading zeros") << QDate(2026, 1, 5) << u"05.01.2026"_s;
        QTest::newRow("two-digit day and month") << QDate(2026, 12, 31) << u"31.12.2026"_s;
        QTest::newRow("early year") << QDate(987, 10, 1) << u"01.10.0987"_s;
        QTest::newRow("invalid") << QDate() << u""_s;
    }

    void formattedDates()
    {
        QFETCH(QDate, date);
        QFETCH(QString, text);
        QCOMPARE(FormatDate(date), text);
    }
};

QTEST_MAIN(TestDayNumber)
#include "tst_daynumber.moc"
