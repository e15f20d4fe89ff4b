#include "accounts/AccountTransactionsScreen.h"
#include "books/Postings.h"
#include "controls/DcCellEditor.h"
#include "controls/DcList.h"
#include "controls/XText.h"
#include "money/AmountConventions.h"
#include "testsupport/Books.h"
#include "testsupport/QueryTexts.h"
#include "testsupport/ScreenFixture.h"
#include "testsupport/ScreenSuite.h"
#include "testsupport/Typing.h"

#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QtTest>

using namespace Qt::StringLiterals;

class TestAccountTransactions : public ScreenSuite<AccountTransactionsScreen>
{
    Q_OBJECT
public:
    TestAccountTransactions()
        : ScreenSuite("mnucarhar", "Form4")
    {
    }

protected:
    void prepare() override
    {
        QVERIFY(AddCard(QStringLiteral("K1"), QStringLiteral("Kaya Hukuk")));
        QVERIFY(AddCard(QStringLiteral("K2"), QStringLiteral("Deniz Ltd.")));
    }

private slots:
    void opensFromTheMenu()
    {
        QVERIFY(code()->textBox()->hasFocus());
        QVERIFY(code()->Button());
        QVERIFY(!grid()->Editable());
        QCOMPARE(grid()->Size(AccountTransactionsScreen::Oto), 0);
    }

    void listsInOrderWithRunningBalance()
    {
        QVERIFY(AddTransaction(QStringLiteral("K1"), 2, 0, Currency::fromUnits(1000), QDate(2026, 11, 10)));
        QVERIFY(AddTransaction(QStringLiteral("K1"), 1, 1, Currency::fromUnits(300), QDate(2026, 11, 5)));
        QVERIFY(AddTransaction(QStringLiteral("K1"), 1, 0, Currency::fromUnits(200), QDate(2026, 11, 5)));
        QVERIFY(
            AddTransaction(QStringLiteral("k1"), 3, 1, Currency::fromUnits(150), QDate(2026, 11, 12))); // lower case
        QVERIFY(AddTransaction(QStringLiteral("K1"), 12, 1, Currency::fromUnits(50), QDate(2026, 11, 13)));
        QVERIFY(AddTransaction(QStringLiteral("K2"), 1, 0, Currency::fromUnits(999), QDate(2026, 11, 5)));
        chooseAccount(QStringLiteral("k1"));
        QCOMPARE(
            m_screen->findChild<QLabel *>(QStringLiteral("unvan"))->accessibleName(), QStringLiteral("Kaya Hukuk"));
        QCOMPARE(m_screen->findChild<QLabel *>(QStringLiteral("cariTip"))->accessibleName(), QStringLiteral("Müşteri"));
        QVERIFY(grid()->Editable());
        QCOMPARE(column(AccountTransactionsScreen::Tarih),
            QStringList({ "05.11.2026", "05.11.2026", "10.11.2026", "12.11.2026", "13.11.2026", "" }));
        QCOMPARE(column(AccountTransactionsScreen::Islem),
            QStringList({ "1-Nakit", "1-Nakit", "2-SMM", "3-Emanet", "", "" }));
        QCOMPARE(column(AccountTransactionsScreen::Ba), QStringList({ "B", "A", "B", "A", "A", "" }));
        QCOMPARE(column(AccountTransactionsScreen::Bakiye),
            QStringList({ "200.00", "-100.00", "900.00", "750.00", "700.00", "" })); // the entry row: none yet
        QCOMPARE(grid()->CurSat(), 5); // on the empty row for a new entry
        const QStringList panelTexts = { panel(0, 0), panel(0, 1), panel(0, 2), panel(1, 0), panel(1, 1), panel(1, 2),
            panel(2, 0), panel(2, 1), panel(2, 2) };
        QCOMPARE(panelTexts,
            QStringList({ "1,200.00", "350.00", "850.00", "", "150.00", "-150.00", "1,200.00", "500.00", "700.00" }));
    }

    void typedRowIsStoredThenEdited()
    {
        chooseAccount(QStringLiteral("K1"));
        m_screen->findChild<XText *>(QStringLiteral("xtext1"))->setText(QString()); // blanked: the list is still K1's
        TypeGridRow(grid(), { "05", "M12", "Danışma", "3", "+", "250" });
        QCOMPARE(StoredRows(u"kod, tarih, evrak, ack, islem, ba, tutar, oto FROM carhar"_s, u':'),
            QStringList { "K1:46331:M12:Danışma:3:0:2500000:1" });
        QCOMPARE(grid()->Caption(0, AccountTransactionsScreen::Oto), QStringLiteral("1"));
        QCOMPARE(
            column(AccountTransactionsScreen::Bakiye), QStringList({ "250.00", "" })); // the new entry row: none yet
        QCOMPARE(grid()->CurSat(), 1);
        QCOMPARE(panel(1, 0), QStringLiteral("250.00"));
        QCOMPARE(panel(2, 2), QStringLiteral("250.00"));

        grid()->ChngSat(0);
        QTest::keyClick(grid()->view(), Qt::Key_Return);
        for (int cell = 0; cell < 5; ++cell)
            QTest::keyClick(grid()->editor(), Qt::Key_Return);
        grid()->editor()->clear();
        typeCell(QStringLiteral("300"));
        QCOMPARE(StoredRows(u"tutar, oto FROM carhar"_s, u':'), QStringList { "3000000:1" }); // the same row, changed
        QCOMPARE(grid()->Caption(0, AccountTransactionsScreen::Bakiye), QStringLiteral("300"));
        QCOMPARE(m_kit->messages().entries().size(), 0);
    }

    void editAfterAnInsertedRow()
    {
        QVERIFY(AddTransaction(QStringLiteral("K1"), 1, 0, Currency::fromUnits(100), QDate(2026, 11, 5)));
        QVERIFY(AddTransaction(QStringLiteral("K1"), 1, 0, Currency::fromUnits(50), QDate(2026, 11, 6)));
        chooseAccount(QStringLiteral("K1"));
        grid()->ChngSat(0);
        QTest::keyClick(grid()->view(), Qt::Key_Insert); // an empty row on top moves the others down
        grid()->ChngSat(2);
        QTest::keyClick(grid()->view(), Qt::Key_Return);
        for (int cell = 0; cell < 5; ++cell)
            QTest::keyClick(grid()->editor(), Qt::Key_Return);
        grid()->editor()->clear();
        typeCell(QStringLiteral("70"));
        QCOMPARE(column(AccountTransactionsScreen::Bakiye), QStringList({ "", "100.00", "170.00", "170.00" }));
        QCOMPARE(panel(2, 2), QStringLiteral("170.00"));
    }

    void amountsAreStoredAsShownAndStay_data()
    {
        QTest::addColumn<int>("decimals"); // "TL Onda"
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("stored");
        QTest::newRow("0: whole liras") << 0 << u"1234.5"_s << u"12,345"_s << u"123450000"_s; // no decimal point
        QTest::newRow("2: rounded as typed") << 2 << u"1.2345"_s << u"1.24"_s << u"12400"_s;
        QTest::newRow("2: 1.23 stays") << 2 << u"1.23"_s << u"1.23"_s << u"12300"_s;
        QTest::newRow("3: 1.235 stays") << 3 << u"1.235"_s << u"1.235"_s << u"12350"_s;
        QTest::newRow("3: 10.001 stays") << 3 << u"10.001"_s << u"10.001"_s << u"100010"_s;
        QTest::newRow("4: 1.235 stays") << 4 << u"1.235"_s << u"1.2350"_s << u"12350"_s;
        QTest::newRow("5: 1.2345 stays") << 5 << u"1.2345"_s << u"1.23450"_s << u"12345"_s;
    }

    // What the list shows is what is stored, and a row listed and stored again keeps its amount.
    void amountsAreStoredAsShownAndStay()
    {
        QFETCH(int, decimals);
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        QFETCH(QString, stored);
        m_screen->closeScreen();
        QTRY_VERIFY(!m_screen);
        amountConventions().tlonda = decimals;
        m_screen = m_kit->open<AccountTransactionsScreen>("mnucarhar", "Form4");
        chooseAccount(QStringLiteral("K1"));
        TypeGridRow(grid(), { "05", "M1", "Danışma", "1", "+", typed });
        QCOMPARE(column(AccountTransactionsScreen::Tutar).value(0), shown); // as typed, before any relisting
        const QString amount = QStringLiteral("SELECT tutar || '' AS r FROM carhar");
        QCOMPARE(QueryTexts(amount, QStringLiteral("r")), QStringList { stored });
        for (int again = 0; again < 2; ++again) {
            chooseAccount(QStringLiteral("K1"));
            QCOMPARE(column(AccountTransactionsScreen::Tutar).value(0), shown);
            grid()->ChngSat(0);
            QTest::keyClick(grid()->view(), Qt::Key_Return);
            for (int cell = 0; cell < 6; ++cell)
                QTest::keyClick(grid()->editor(), Qt::Key_Return);
            QCOMPARE(QueryTexts(amount, QStringLiteral("r")), QStringList { stored });
        }
    }

    void typedValuesAreNormalised_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("side");
        QTest::addColumn<QString>("shownType");
        QTest::addColumn<QString>("shownSide");
        QTest::addColumn<QString>("stored");
        QTest::newRow("3 and +") << u"3"_s << u"+"_s << u"3-Emanet"_s << u"B"_s << u"3:0"_s;
        QTest::newRow("1 and +: the first type") << u"1"_s << u"+"_s << u"1-Nakit"_s << u"B"_s << u"1:0"_s;
        QTest::newRow("x and b") << u"x"_s << u"b"_s << u"0-Devir"_s << u"B"_s << u"0:0"_s;
        QTest::newRow("9 and a") << u"9"_s << u"a"_s << u"9-Diğer"_s << u"A"_s << u"9:1"_s;
        QTest::newRow("0 and -") << u"0"_s << u"-"_s << u"0-Devir"_s << u"A"_s << u"0:1"_s;
        QTest::newRow("nothing and x") << u""_s << u"x"_s << u"0-Devir"_s << u"A"_s << u"0:1"_s;
    }

    void typedValuesAreNormalised()
    {
        QFETCH(QString, type);
        QFETCH(QString, side);
        QFETCH(QString, shownType);
        QFETCH(QString, shownSide);
        QFETCH(QString, stored);
        chooseAccount(QStringLiteral("K1"));
        QTest::keyClick(grid()->view(), Qt::Key_Return);
        typeCell(QStringLiteral("05"));
        typeCell(QString());
        typeCell(QString());
        typeCell(type);
        grid()->editor()->clear(); // the suggested "B"
        typeCell(side);
        typeCell(QStringLiteral("10"));
        QCOMPARE(grid()->Caption(0, AccountTransactionsScreen::Islem), shownType);
        QCOMPARE(grid()->Caption(0, AccountTransactionsScreen::Ba), shownSide);
        QCOMPARE(StoredRows(u"islem, ba FROM carhar"_s, u':'), QStringList { stored });
    }

    void typePanelFillsTheCell()
    {
        chooseAccount(QStringLiteral("K1"));
        auto *typePanel = m_screen->findChild<QWidget *>(QStringLiteral("islemPanel"));
        QVERIFY(typePanel->isHidden());
        QTest::keyClick(grid()->view(), Qt::Key_Return);
        typeCell(QStringLiteral("05"));
        typeCell(QString());
        typeCell(QString());
        QVERIFY(typePanel->isVisible());
        QPushButton *choice = nullptr;
        for (QPushButton *button : typePanel->findChildren<QPushButton *>())
            if (button->text() == u" 7-Masraf")
                choice = button;
        QVERIFY(choice);
        choice->click();
        QCOMPARE(grid()->editor()->text(), QStringLiteral("7-Masraf"));
        QTest::keyClick(grid()->editor(), Qt::Key_Return);
        QVERIFY(typePanel->isHidden());
        QCOMPARE(grid()->editor()->text(), QStringLiteral("B")); // the suggested side
    }

    void deleteAsksFirst()
    {
        QVERIFY(AddTransaction(QStringLiteral("K1"), 1, 0, Currency::fromUnits(100), QDate(2026, 11, 5)));
        QVERIFY(AddTransaction(QStringLiteral("K1"), 1, 0, Currency::fromUnits(40), QDate(2026, 11, 6)));
        chooseAccount(QStringLiteral("K1"));
        grid()->ChngSat(0);
        m_kit->messages().answerNext(false);
        QTest::keyClick(grid()->view(), Qt::Key_Delete);
        QCOMPARE(m_kit->messages().texts(), QStringList { "Hareket Silinecek Eminmisiniz ?" });
        QCOMPARE(grid()->ListCount(), 3);
        m_kit->messages().answerNext(true);
        QTest::keyClick(grid()->view(), Qt::Key_Delete);
        QCOMPARE(grid()->ListCount(), 2);
        QCOMPARE(QueryTexts(QStringLiteral("SELECT tutar || '' AS t FROM carhar"), QStringLiteral("t")),
            QStringList { "400000" });
        QCOMPARE(column(AccountTransactionsScreen::Bakiye), QStringList({ "40.00", "40.00" }));
        QCOMPARE(panel(0, 0), QStringLiteral("40.00"));
    }

    void nothingToDelete_data()
    {
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QStringList>("messages");
        QTest::newRow("the empty row") << u""_s << QStringList();
        QTest::newRow("a negative amount") << u"-5"_s << QStringList();
        QTest::newRow("an amount without a key") << u"5"_s << QStringList { "İndex Bilgileri Yok.." };
    }

    void nothingToDelete()
    {
        QFETCH(QString, amount);
        QFETCH(QStringList, messages);
        QVERIFY(AddTransaction(QStringLiteral("K1"), 1, 0, Currency::fromUnits(100)));
        chooseAccount(QStringLiteral("K1"));
        grid()->setCaption(1, AccountTransactionsScreen::Tutar, amount);
        m_kit->messages().answerNext(true);
        QTest::keyClick(grid()->view(), Qt::Key_Delete);
        QCOMPARE(m_kit->messages().texts(), messages);
        if (!messages.isEmpty())
            QCOMPARE(m_kit->messages().entries().first().kind, Message::Kind::Notice);
        QCOMPARE(grid()->ListCount(), 2);
        QCOMPARE(
            QueryTexts(QStringLiteral("SELECT count(*) AS n FROM carhar"), QStringLiteral("n")), QStringList { "1" });
    }

    void unknownCodeEmptiesTheList()
    {
        QVERIFY(AddTransaction(QStringLiteral("K1"), 1, 0, Currency::fromUnits(100)));
        chooseAccount(QStringLiteral("K1"));
        QCOMPARE(grid()->ListCount(), 2);
        code()->setFocus();
        TypeIntoField(code(), QStringLiteral("YOK"));
        QTest::keyClick(code()->textBox(), Qt::Key_Return);
        QCOMPARE(grid()->ListCount(), 0);
        QCOMPARE(panel(0, 0), QString());
        QVERIFY(grid()->Editable()); // as it was
        QCOMPARE(m_screen->findChild<QLabel *>(QStringLiteral("unvan"))->text(), QStringLiteral("Kaya Hukuk"));
    }

    void escapeGoesBackThenCloses()
    {
        chooseAccount(QStringLiteral("K1"));
        QVERIFY(grid()->view()->hasFocus());
        QTest::keyClick(grid()->view(), Qt::Key_Escape);
        QVERIFY(!grid()->Editable());
        QVERIFY(code()->textBox()->hasFocus());
        QTest::keyClick(code()->textBox(), Qt::Key_Escape);
        QTRY_VERIFY(!m_screen);
    }

    // 40 characters, the last an emoji (two UTF-16 units): stored whole; a 41st is not taken.
    void descriptionCountsCharacters()
    {
        chooseAccount(QStringLiteral("K1"));
        const QString description = QString(39, u'a') + QStringLiteral("\U0001F600");
        TypeGridRow(grid(), { "05", "M12", description + u'b', "1", "+", "250" });
        QCOMPARE(
            QueryTexts(QStringLiteral("SELECT ack FROM carhar"), QStringLiteral("ack")), QStringList { description });
        QVERIFY(m_kit->messages().entries().isEmpty());
    }

private:
    XText *code() const { return m_screen->findChild<XText *>(QStringLiteral("xtext1")); }
    DcList *grid() const { return m_screen->findChild<DcList *>(QStringLiteral("dclist1")); }
    QString panel(int row, int column) const
    {
        return m_screen->findChild<QLabel *>(QStringLiteral("bakiye_%1_%2").arg(row).arg(column))->accessibleName();
    }
    QStringList column(int c) const { return GridColumn(grid(), c); }
    void chooseAccount(const QString &account);
    void typeCell(const QString &keys);
};

void TestAccountTransactions::chooseAccount(const QString &account)
{
    TypeIntoField(code(), account);
    QTest::keyClick(code()->textBox(), Qt::Key_Return); // on to the grid: the account is listed
}

void TestAccountTransactions::typeCell(const QString &keys)
{
    typeKeys(grid()->editor(), keys);
    QTest::keyClick(grid()->editor(), Qt::Key_Return);
}

QTEST_MAIN(TestAccountTransactions)
#include "tst_accounttransactions.moc"
