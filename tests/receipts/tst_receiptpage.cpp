#include "money/AmountConventions.h"
#include "receipts/ReceiptPage.h"

#include <QtTest>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(LayoutRow)

class TestReceiptPage : public QObject
{
    Q_OBJECT
private slots:
    void init() { amountConventions() = AmountConventions(); }

    void emptyLayoutIsBlank()
    {
        const QStringList page = ComposeReceiptPage(receipt(), {});
        QCOMPARE(page.size(), 33);
        for (const QString &line : page)
            QCOMPARE(line, QString(80, u' '));
    }

    void placing_data()
    {
        QTest::addColumn<LayoutRow>("row");
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("text"); // the line, right blanks trimmed
        QTest::newRow("name at column 5") << LayoutRow { 0, 20, 5, 3, {} } << 3 << u"    Şükrü Işık"_s;
        QTest::newRow("amount too wide keeps its end") << LayoutRow { 7, 8, 1, 1, {} } << 1 << u"4,567.89"_s;
        QTest::newRow("right-aligned rate") << LayoutRow { 16, 6, 1, 2, {} } << 2 << u"  18.5"_s;
        QTest::newRow("column 75, width 10") << LayoutRow { 6, 10, 75, 4, {} } << 4 << QString(74, u' ') + "Açıkla";
        QTest::newRow("tax office and number") << LayoutRow { 5, 20, 1, 5, {} } << 5 << u"Çankaya - 123"_s;
        QTest::newRow("total in words") << LayoutRow { 13, 40, 1, 33, QStringLiteral(" Yalnız ") } << 33
                                        << u"Yalnızdokuzyüzaltmış TL"_s;
        QTest::newRow("free text as stored")
            << LayoutRow { 19, 10, 1, 6, QStringLiteral(" Sayın ") } << 6 << u" Sayın"_s;
        QTest::newRow("line 0 is off the page") << LayoutRow { 0, 10, 1, 0, {} } << 0 << u""_s;
        QTest::newRow("line 34 is off the page") << LayoutRow { 0, 10, 1, 34, {} } << 0 << u""_s;
        QTest::newRow("column 0 cannot be placed") << LayoutRow { 0, 10, 0, 3, {} } << 0 << u""_s;
        QTest::newRow("position rounds halves to even") << LayoutRow { 17, 4.5f, 2.5f, 7.5f, {} } << 8 << u" 501"_s;
    }

    void placing()
    {
        QFETCH(LayoutRow, row);
        QFETCH(int, line);
        QFETCH(QString, text);
        ReceiptValues values = receipt();
        values.description = QStringLiteral("Açıklama metni");
        const QStringList page = ComposeReceiptPage(values, { row });
        for (int i = 0; i < 33; ++i) {
            QCOMPARE(page[i].size(), 80);
            const QString trimmed = QString(page[i]).remove(QRegularExpression(QStringLiteral(" +$")));
            QCOMPARE(trimmed, i + 1 == line ? text : QString());
        }
    }

    void wordsFollowTheReceiptDate_data()
    {
        QTest::addColumn<QString>("date");
        QTest::addColumn<QString>("total");
        QTest::addColumn<QString>("line"); // line 33, right blanks trimmed
        QTest::newRow("last day of the YTL") << u"31.12.2008"_s << u"1000.50"_s << u"Yalnızbin YTL elli YKR"_s;
        QTest::newRow("first day of the TL") << u"01.01.2009"_s << u"1000.50"_s << u"Yalnızbin TL elli Kr"_s;
        QTest::newRow("zero") << u"01.01.2009"_s << u"0"_s << u"Yalnız TL"_s;
        QTest::newRow("kuruş alone") << u"31.12.2008"_s << u"0.05"_s << u"Yalnız YTL beş YKR"_s;
    }

    void wordsFollowTheReceiptDate()
    {
        QFETCH(QString, date);
        QFETCH(QString, total);
        QFETCH(QString, line);
        ReceiptValues values = receipt();
        values.date = date;
        values.total = Currency::fromString(total);
        const QStringList page
            = ComposeReceiptPage(values, { LayoutRow { 13, 60, 1, 33, QStringLiteral(" Yalnız ") } });
        QCOMPARE(QString(page[32]).remove(QRegularExpression(QStringLiteral(" +$"))), line);
    }

    void laterRowsOverwriteEarlierOnes_data()
    {
        QTest::addColumn<bool>("numberLast");
        QTest::addColumn<QString>("text");
        QTest::newRow("number over the name") << true << u"    Şük501 şık"_s;
        QTest::newRow("name over the number") << false << u"    Şükrü Işık"_s;
    }

    // Two rows on one line whose columns overlap: the row added later wins, blanks and all.
    void laterRowsOverwriteEarlierOnes()
    {
        QFETCH(bool, numberLast);
        QFETCH(QString, text);
        const LayoutRow name { 0, 20, 5, 3, {} };
        const LayoutRow number { 17, 4, 8, 3, {} };
        const QStringList page
            = ComposeReceiptPage(receipt(), numberLast ? std::vector { name, number } : std::vector { number, name });
        QCOMPARE(QString(page[2]).remove(QRegularExpression(QStringLiteral(" +$"))), text);
    }

private:
    static ReceiptValues receipt()
    {
        ReceiptValues v;
        v.number = QStringLiteral("501");
        v.date = QStringLiteral("16.11.2026");
        v.title = QStringLiteral("Şükrü Işık");
        v.taxOffice = QStringLiteral("Çankaya");
        v.taxNumber = QStringLiteral("123");
        v.gross = Currency::fromString(u"1234567.89");
        v.total = Currency::fromUnits(960);
        v.stopajRate = 20.0f;
        v.kdvRate = 18.5f;
        return v;
    }
};

QTEST_APPLESS_MAIN(TestReceiptPage)
#include "tst_receiptpage.moc"
