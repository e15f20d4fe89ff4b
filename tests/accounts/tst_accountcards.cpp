#include "accounts/AccountCardsScreen.h"
#include "books/AccessLayer.h"
#include "books/DataFiles.h"
#include "books/Parameters.h"
#include "controls/XText.h"
#include "money/AmountConventions.h"
#include "testsupport/Books.h"
#include "testsupport/QueryTexts.h"
#include "testsupport/ScreenFixture.h"
#include "testsupport/ScreenSuite.h"
#include "testsupport/Typing.h"

#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QtTest>

using namespace Qt::StringLiterals;

class TestAccountCards : public ScreenSuite<AccountCardsScreen>
{
    Q_OBJECT
public:
    TestAccountCards()
        : ScreenSuite("mnucarkart", "Form3")
    {
    }

protected:
    void prepare() override
    {
        QVERIFY(AddCard(QStringLiteral("B1"), QStringLiteral("Birinci")));
        QVERIFY(AddCard(QStringLiteral("C1"), QStringLiteral("Çağlar")));
        QVERIFY(AddCard(QStringLiteral("A1"), QStringLiteral("Ahmet")));
    }

private slots:
    void opensFromTheMenu()
    {
        QVERIFY(field(0)->textBox()->hasFocus());
        QVERIFY(field(0)->Button());
        QCOMPARE(field(6)->Onda(), 2);
        QCOMPARE(
            m_screen->findChild<QToolButton *>(QStringLiteral("Command1_4"))->toolTip(), QStringLiteral("Kaydet (F5)"));
    }

    void newCodeClearsTheCardButKeepsTheNotes()
    {
        typeInto(0, QStringLiteral("A1"));
        key(Qt::Key_Return); // leaving the code field shows the card
        QCOMPARE(field(1)->Text(), QStringLiteral("Ahmet"));
        QTest::keyClick(field(1)->textBox(), Qt::Key_End);
        typeInto(1, QStringLiteral(" Bey"));
        typeInto(6, QStringLiteral("1500"));
        typeInto(7, QStringLiteral("1"));
        typeInto(8, QStringLiteral("Telefon 555"));
        key(Qt::Key_F5);
        QCOMPARE(m_kit->messages().entries().size(), 0);
        QVERIFY(CariExists(QStringLiteral("A1")));
        QCOMPARE(FieldRead(*dataFiles().carkart, QStringLiteral("unv")).toString(), QStringLiteral("Ahmet Bey"));
        QCOMPARE(FieldRead(*dataFiles().carkart, QStringLiteral("tip")).toInt(), 1);
        QCOMPARE(FieldRead(*dataFiles().carkart, QStringLiteral("ucret")).value<Currency>(), Currency::fromUnits(1500));

        field(0)->setFocus();
        typeInto(0, QStringLiteral("Y9"));
        key(Qt::Key_Return);
        for (int i = 1; i <= 5; ++i)
            QCOMPARE(field(i)->Text(), QString());
        QCOMPARE(field(6)->Value().toDouble(), 0.0);
        QCOMPARE(m_screen->findChild<QLabel *>(QStringLiteral("cariTip"))->text(), QString());
        QCOMPARE(field(8)->Text(), QStringLiteral("Telefon 555"));
        key(Qt::Key_F5);
        QVERIFY(CariExists(QStringLiteral("Y9")));
        QCOMPARE(FieldRead(*dataFiles().carkart, QStringLiteral("not1")).toString(), QStringLiteral("Telefon 555"));
    }

    void blankCodeSavesNothing()
    {
        typeInto(0, QStringLiteral("   "));
        typeInto(1, QStringLiteral("Boş"));
        key(Qt::Key_F5);
        QCOMPARE(
            QueryTexts(QStringLiteral("SELECT count(*) AS n FROM carkart"), QStringLiteral("n")), QStringList { "3" });
        QVERIFY(m_kit->messages().entries().isEmpty());
    }

    void balancePanel_data()
    {
        QTest::addColumn<bool>("withDeposit");
        QTest::addColumn<QStringList>("expected"); // the nine labels row by row
        QTest::newRow("only receipts") << false
                                       << QStringList { "", "", "", "1,000.00", "250.00", "750.00", "1,000.00",
                                              "250.00", "750.00" };
        QTest::newRow("with a deposit") << true
                                        << QStringList { "", "300.00", "-300.00", "1,000.00", "250.00", "750.00",
                                               "1,000.00", "550.00", "450.00" };
    }

    void balancePanel()
    {
        QFETCH(bool, withDeposit);
        QFETCH(QStringList, expected);
        QVERIFY(AddTransaction(QStringLiteral("B1"), 2, 0, Currency::fromUnits(600)));
        QVERIFY(AddTransaction(QStringLiteral("b1"), 2, 0, Currency::fromUnits(400))); // the same code in lower case
        QVERIFY(AddTransaction(QStringLiteral("B1"), 2, 1, Currency::fromUnits(250)));
        QVERIFY(AddTransaction(QStringLiteral("C1"), 1, 0, Currency::fromUnits(99)));
        if (withDeposit)
            QVERIFY(AddTransaction(QStringLiteral("B1"), 3, 1, Currency::fromUnits(300)));
        typeInto(0, QStringLiteral("b1"));
        key(Qt::Key_Return);
        QStringList shown;
        for (int row = 0; row < 3; ++row)
            for (int column = 0; column < 3; ++column)
                shown << panel(row, column);
        QCOMPARE(shown, expected);
        const auto *balance = m_screen->findChild<QLabel *>(QStringLiteral("bakiye_0_2"));
        QCOMPARE(balance->accessibleDescription(), QStringLiteral("Bakiye Bakiye"));
        const auto *type = m_screen->findChild<QLabel *>(QStringLiteral("cariTip"));
        QCOMPARE(type->accessibleName(), QStringLiteral("Müşteri"));
        QCOMPARE(type->accessibleDescription(), QStringLiteral("Cari Tip Adı"));
    }

    void deleteAsksFirst()
    {
        QVERIFY(AddTransaction(QStringLiteral("B1"), 2, 0, Currency::fromUnits(600)));
        QVERIFY(AddTransaction(QStringLiteral("b1"), 1, 1, Currency::fromUnits(100))); // the same code in lower case
        QVERIFY(AddTransaction(QStringLiteral("C1"), 1, 1, Currency::fromUnits(100)));
        typeInto(0, QStringLiteral("B1"));
        key(Qt::Key_Return);
        m_kit->messages().answerNext(false);
        key(Qt::Key_F7);
        QCOMPARE(m_kit->messages().texts(), QStringList { QStringLiteral("Kart Silinecek Eminmisiniz ?") });
        QCOMPARE(m_kit->messages().entries().first().kind, Message::Kind::Question);
        QVERIFY(CariExists(QStringLiteral("B1")));
        QCOMPARE(
            QueryTexts(QStringLiteral("SELECT count(*) AS n FROM carhar"), QStringLiteral("n")), QStringList { "3" });

        m_kit->messages().answerNext(true);
        key(Qt::Key_F7);
        QVERIFY(!CariExists(QStringLiteral("B1")));
        QCOMPARE(QueryTexts(QStringLiteral("SELECT kod FROM carhar"), QStringLiteral("kod")), QStringList { "C1" });
        QCOMPARE(field(0)->Text(), QString());
        QCOMPARE(field(1)->Text(), QString());

        typeInto(0, QStringLiteral("B1"));
        key(Qt::Key_F7);
        QCOMPARE(m_kit->messages().texts().last(), QStringLiteral("Silinecek Cari Kart Bulunamadı..."));
    }

    void movingStopsAtBothEnds()
    {
        typeInto(0, QStringLiteral("A1"));
        key(Qt::Key_Return);
        field(0)->setFocus();
        key(Qt::Key_PageUp); // already the first card: the cursor goes before it, nothing changes
        QCOMPARE(field(0)->Text(), QStringLiteral("A1"));
        QCOMPARE(field(1)->Text(), QStringLiteral("Ahmet"));
        key(Qt::Key_PageDown); // from before the first card back onto it
        QCOMPARE(field(0)->Text(), QStringLiteral("A1"));
        key(Qt::Key_PageDown);
        QCOMPARE(field(0)->Text(), QStringLiteral("B1"));
        QCOMPARE(field(1)->Text(), QStringLiteral("Birinci"));
        key(Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(field(0)->Text(), QStringLiteral("C1"));
        key(Qt::Key_PageDown); // past the last card: nothing shown changes
        QCOMPARE(field(0)->Text(), QStringLiteral("C1"));
        QCOMPARE(field(1)->Text(), QStringLiteral("Çağlar"));
        key(Qt::Key_PageUp); // back on the last card
        QCOMPARE(field(0)->Text(), QStringLiteral("C1"));
        key(Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(field(0)->Text(), QStringLiteral("A1"));
        key(Qt::Key_Escape);
        QTRY_VERIFY(!m_screen);
    }

    void refusedWriteIsReported_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::addColumn<QString>("code");
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("message");
        QTest::newRow("new card") << u"INSERT"_s << u"Y9"_s << int(Qt::Key_F5) << u"Cari Kartlar Yazılamıyor.."_s;
        QTest::newRow("changed card") << u"UPDATE"_s << u"B1"_s << int(Qt::Key_F5) << u"Cari Kartlar Yazılamıyor.."_s;
        QTest::newRow("deleted card") << u"DELETE"_s << u"B1"_s << int(Qt::Key_F7) << u"Kart Silinemedi."_s;
    }

    // A write the engine refuses is reported and changes nothing: the card and its transactions stay.
    void refusedWriteIsReported()
    {
        QFETCH(QString, operation);
        QFETCH(QString, code);
        QFETCH(int, key);
        QFETCH(QString, message);
        QVERIFY(AddTransaction(QStringLiteral("B1"), 2, 0, Currency::fromUnits(600)));
        QVERIFY(RefuseWrites(QStringLiteral("carkart"), operation));
        typeInto(0, code);
        this->key(Qt::Key_Return);
        typeInto(1, QStringLiteral("Yeni Ünvan"));
        m_kit->messages().answerNext(true);
        this->key(key);
        QVERIFY(!m_kit->messages().entries().isEmpty());
        QCOMPARE(m_kit->messages().texts().last(), message);
        QCOMPARE(m_kit->messages().entries().last().kind, Message::Kind::Exclamation);
        QCOMPARE(StoredRows(u"kod, unv FROM carkart ORDER BY kod"_s),
            QStringList({ "A1|Ahmet", "B1|Birinci", "C1|Çağlar" }));
        QCOMPARE(
            QueryTexts(QStringLiteral("SELECT count(*) AS n FROM carhar"), QStringLiteral("n")), QStringList { "1" });
    }

private:
    XText *field(int index) const { return m_screen->findChild<XText *>(QStringLiteral("xtext1_%1").arg(index)); }
    // A panel amount as a screen reader reads it: the value is the label's accessible name.
    QString panel(int row, int column) const
    {
        const auto *amount = m_screen->findChild<QLabel *>(QStringLiteral("bakiye_%1_%2").arg(row).arg(column));
        return amount->accessibleName() == amount->text() ? amount->accessibleName() : QStringLiteral("?");
    }
    void typeInto(int index, const QString &keys) { TypeIntoField(field(index), keys); }
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
};

void TestAccountCards::key(int key, Qt::KeyboardModifiers modifiers)
{
    QWidget *focused = QApplication::focusWidget();
    QVERIFY(focused);
    QTest::keyClick(focused, Qt::Key(key), modifiers);
}

QTEST_MAIN(TestAccountCards)
#include "tst_accountcards.moc"
