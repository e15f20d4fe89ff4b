#include "accounts/AccountStatementScreen.h"
#include "accounts/DebitCreditScreen.h"
#include "controls/DcList.h"
#include "controls/ListWindow.h"
#include "controls/XText.h"
#include "money/AmountConventions.h"
#include "printing/PrintSettings.h"
#include "testsupport/Books.h"
#include "testsupport/Golden.h"
#include "testsupport/PdfPrintout.h"
#include "testsupport/PrivateSpooler.h"
#include "testsupport/ScreenFixture.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

const QDate today(2026, 11, 16);

Currency lira(qint64 units)
{
    return Currency::fromUnits(units);
}

} // namespace

class TestAccountReports : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_spooler = std::make_unique<PrivateSpooler>(QStringLiteral("cari"));
        QVERIFY2(m_spooler->isReady(), qPrintable(m_spooler->error()));
    }

    void init()
    {
        m_kit = std::make_unique<ScreenFixture>(today);
        QVERIFY(m_kit->isReady());
        amountConventions().tlonda = 2;
    }

    void cleanup() { m_kit.reset(); }

    void opensWithTheFirstAndLastCard()
    {
        seedMixedBook();
        QVERIFY(open<DebitCreditScreen>("mnugbor", "Form10"));
        QCOMPARE(field(0)->Text(), QStringLiteral("D1"));
        QCOMPARE(field(1)->Text(), QStringLiteral("X1"));
        for (int type = 0; type < 3; ++type)
            QVERIFY(m_screen->findChild<QCheckBox *>(QStringLiteral("Check1_%1").arg(type))->isChecked());
        QVERIFY(open<AccountStatementScreen>("mnucareks", "Form16"));
        QCOMPARE(field(0)->Text(), QStringLiteral("D1"));
        QCOMPARE(field(1)->Text(), QStringLiteral("X1"));
    }

    void listedOnScreen_data()
    {
        QTest::addColumn<QList<bool>>("types");
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("all types") << QList<bool> { true, true, true }
                                   << QStringList { "D1|Deniz Ltd.|50.00|40.00|10.00|",
                                          "K1|Kaya Hukuk|800.00|300.00|500.00|", "P1|Ali Veli||250.00||250.00",
                                          "X1|Ağaoğlu|500.00|500.00||",
                                          "|T O P L A M|1,350.00|1,090.00|510.00|250.00" };
        QTest::newRow("only customers") << QList<bool> { true, false, false }
                                        << QStringList { "K1|Kaya Hukuk|800.00|300.00|500.00|",
                                               "X1|Ağaoğlu|500.00|500.00||", "|T O P L A M|1,300.00|800.00|500.00|" };
        QTest::newRow("none") << QList<bool> { false, false, false } << QStringList { "|T O P L A M||||" };
    }

    void listedOnScreen()
    {
        QFETCH(QList<bool>, types);
        QFETCH(QStringList, rows);
        seedMixedBook();
        auto *screen = open<DebitCreditScreen>("mnugbor", "Form10");
        QVERIFY(screen);
        for (int type = 0; type < 3; ++type)
            check(type, types[type]);
        QTest::keyClick(field(2)->textBox(), Qt::Key_F7);
        QVERIFY(screen->listWindow());
        QCOMPARE(screen->listWindow()->objectName(), QStringLiteral("Form11"));
        QCOMPARE(screen->listWindow()->windowTitle(), QStringLiteral("Genel Borç Alacak Listesi"));
        QCOMPARE(GridRows(screen->listWindow()->list()), rows);
        QCOMPARE(screen->listWindow()->list()->CaptionByName(3 - (types[1] ? 0 : 2), QStringLiteral("abak")),
            types[0] ? QStringLiteral("0") : QString()); // X1: settled, 0 on the credit side
        screen->listOnScreen(); // a second listing replaces the rows
        QCOMPARE(GridRows(screen->listWindow()->list()), rows);
    }

    void datesBoundTheSums_data()
    {
        QTest::addColumn<QString>("firstCode");
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("from K1") << QStringLiteral("K1")
                                 << QStringList({ "K1|Kaya Hukuk|800.00||800.00|", "P1|Ali Veli||250.00||250.00",
                                        "X1|Ağaoğlu|500.00||500.00|", "|T O P L A M|1,300.00|250.00|1,300.00|250.00" });
        // The range holds every card: the sums read no code bound, the dates still bound them.
        QTest::newRow("every card") << QStringLiteral("D1")
                                    << QStringList({ "D1|Deniz Ltd.|100.00||100.00|", "K1|Kaya Hukuk|800.00||800.00|",
                                           "P1|Ali Veli||250.00||250.00", "X1|Ağaoğlu|500.00||500.00|",
                                           "|T O P L A M|1,400.00|250.00|1,400.00|250.00" });
    }

    void datesBoundTheSums()
    {
        QFETCH(QString, firstCode);
        QFETCH(QStringList, rows);
        seedMixedBook();
        auto *screen = open<DebitCreditScreen>("mnugbor", "Form10");
        TypeIntoField(field(2), QStringLiteral("??.??.????")); // not a date: no bound
        TypeIntoField(field(3), QStringLiteral("01042026"));
        TypeIntoField(field(0), firstCode);
        screen->listOnScreen();
        QCOMPARE(GridRows(screen->listWindow()->list()), rows);
    }

    // Three rows at the largest amount a cell takes: that account and the totals show "Taşma", the
    // other accounts stand. One such row alone is shown whole, in both lists.
    void sumBeyondTheMoneyTypeShowsOverflow()
    {
        const Currency largest = Currency::fromString(QStringLiteral("922337203685476"));
        QVERIFY(AddCard(QStringLiteral("K1"), QStringLiteral("Kaya Hukuk")));
        QVERIFY(AddCard(QStringLiteral("K2"), QStringLiteral("Deniz Kaya")));
        QVERIFY(AddCard(QStringLiteral("X1"), QStringLiteral("Ağaoğlu")));
        for (int n = 0; n < 3; ++n)
            QVERIFY(AddTransaction(QStringLiteral("K1"), 2, 0, largest));
        QVERIFY(AddTransaction(QStringLiteral("K2"), 2, 0, largest));
        QVERIFY(AddTransaction(QStringLiteral("X1"), 2, 0, lira(500)));
        auto *screen = open<DebitCreditScreen>("mnugbor", "Form10");
        QVERIFY(screen);
        screen->listOnScreen();
        QVERIFY(m_kit->messages().entries().isEmpty());
        QCOMPARE(GridRows(screen->listWindow()->list()),
            QStringList(
                { "K1|Kaya Hukuk|Taşma||Taşma|Taşma", "K2|Deniz Kaya|922,337,203,685,476.00||922,337,203,685,476.00|",
                    "X1|Ağaoğlu|500.00||500.00|", "|T O P L A M|Taşma||Taşma|Taşma" }));
        QCOMPARE(CutFigures(screen->listWindow()->list()), QStringList());

        auto *statement = open<AccountStatementScreen>("mnucareks", "Form16");
        TypeIntoField(field(0), QStringLiteral("K2"));
        TypeIntoField(field(1), QStringLiteral("K2"));
        statement->listOnScreen();
        QCOMPARE(GridRows(statement->listWindow()->list()).mid(1, 1),
            QStringList({ "16.11.2026|2-SMM|||922,337,203,685,476.00||922,337,203,685,476.00 B" }));
        QCOMPARE(CutFigures(statement->listWindow()->list()), QStringList());
    }

    void debitCreditPagesOnTheDotMatrixPrinter_data()
    {
        QTest::addColumn<int>("accounts");
        QTest::addColumn<QString>("pages");
        // Eight lines of head and 52 rows bring a page to 60 lines, where it ends.
        QTest::newRow("two pages") << 53 << u"accounts/pages/debit-credit-two-pages.txt"_s;
        QTest::newRow("the last row ends a page") << 52 << u"accounts/pages/debit-credit-last-row-ends-page.txt"_s;
    }

    void debitCreditPagesOnTheDotMatrixPrinter()
    {
        QFETCH(int, accounts);
        QFETCH(QString, pages);
        QVERIFY(AddCard(QStringLiteral("A000"), QStringLiteral("Personel"), {}, {}, 1));
        QVERIFY(AddTransaction(QStringLiteral("A000"), 6, 1, lira(7)));
        for (int n = 1; n <= accounts; ++n) {
            const QString code = QStringLiteral("A%1").arg(n, 3, 10, QLatin1Char('0'));
            QVERIFY(AddCard(code, QStringLiteral("Müvekkil %1").arg(n)));
            QVERIFY(AddTransaction(code, 2, 0, lira(10)));
        }
        QVERIFY(AddTransaction(QStringLiteral("A001"), 1, 1, lira(10))); // settled: a credit-side line of blanks
        QVERIFY(open<DebitCreditScreen>("mnugbor", "Form10"));
        check(1, false); // the staff account is left out of rows and totals
        COMPARE_GOLDEN(RawPrintout(printRaw()), pages);
        QVERIFY(m_spooler->jobTitles().contains(QStringLiteral("GENEL BORÇ ALACAK LİSTESİ")));
    }

    void nothingAdmittedPrintsEmptyTotals()
    {
        seedMixedBook();
        QVERIFY(open<DebitCreditScreen>("mnugbor", "Form10"));
        for (int type = 0; type < 3; ++type)
            check(type, false);
        COMPARE_GOLDEN(RawPrintout(printRaw()), "accounts/pages/debit-credit-nothing-admitted.txt");
    }

    void debitCreditListAsPdf()
    {
        seedMixedBook();
        QVERIFY(open<DebitCreditScreen>("mnugbor", "Form10"));
        const PdfPrintout pdf(
            this, [this] { m_screen->findChild<QPushButton *>(QStringLiteral("Command1"))->click(); });
        QCOMPARE(pdf.pageCount(), 1);
        for (const char *expected : { "GENELBORÇALACAKLİSTESİ", "CariAralık:D1-X1", "Sayfa:1", "AlacakBakiye",
                 "KayaHukuk", "Ağaoğlu", "TOPLAM:", "1,350.00", "1,090.00" })
            QVERIFY2(pdf.text(0).contains(QString::fromUtf8(expected)), expected);
        QVERIFY(!pdf.text(0).contains(QStringLiteral("999")));
        QVERIFY2(pdf.footingFault(QStringLiteral("T O P L A M :")).isEmpty(), qPrintable(pdf.footingFault("TOPLAM:")));
    }

    void statementOnScreen()
    {
        seedMixedBook();
        auto *screen = open<AccountStatementScreen>("mnucareks", "Form16");
        QVERIFY(screen);
        check(2, false); // "Diğer" left out
        QTest::keyClick(field(0)->textBox(), Qt::Key_F7);
        QVERIFY(screen->listWindow());
        QCOMPARE(screen->listWindow()->windowTitle(), QStringLiteral("Cari Hareket Dökümü"));
        QCOMPARE(GridRows(screen->listWindow()->list()),
            QStringList(
                { "K1||||||", "01.03.2026|2-SMM|||1,000.00||1,000.00 B", "02.03.2026|9-Diğer|||-200.00||800.00 B",
                    "01.05.2026|1-Nakit||||300.00|500.00 B", "|||Hesap Toplamı :|800.00|300.00|500.00 B", "M5||||||",
                    "01.06.2026|1-Nakit|||999.00||999.00 B", // no card: listed, no title
                    "|||Hesap Toplamı :|999.00||999.00 B", "P1||||||", "01.04.2026|6-Maaş||||250.00|250.00 A",
                    "|||Hesap Toplamı :||250.00|250.00 A", "X1||||||", "01.02.2026|2-SMM|||500.00||500.00 B",
                    "01.06.2026|1-Nakit||||500.00|", "|||Hesap Toplamı :|500.00|500.00|" })
                .replaceInStrings(QStringLiteral("K1||||||"), QStringLiteral("K1|||Kaya Hukuk|||"))
                .replaceInStrings(QStringLiteral("P1||||||"), QStringLiteral("P1|||Ali Veli|||"))
                .replaceInStrings(QStringLiteral("X1||||||"), QStringLiteral("X1|||Ağaoğlu|||")));
    }

    void statementPagesOnTheDotMatrixPrinter()
    {
        QVERIFY(AddCard(QStringLiteral("K1"), QStringLiteral("Kaya Hukuk")));
        for (int n = 0; n < 60; ++n)
            QVERIFY(AddTransaction(QStringLiteral("K1"), 1, 0, lira(10), QDate(2026, 1, 1).addDays(n)));
        QVERIFY(open<AccountStatementScreen>("mnucareks", "Form16"));
        COMPARE_GOLDEN(RawPrintout(printRaw()), "accounts/pages/statement-two-pages.txt");
    }

    // Codes in Turkish order (a, C, Ç, D, I, İ, Z), a range typed in lower case, and accounts posted
    // under other spellings of their codes: one line, one account, under the card's code.
    void turkishOrderAndCase()
    {
        for (const char16_t *code : { u"inci", u"IŞIK", u"ÇAM", u"ZEKİ", u"DENİZ", u"CEM", u"ali" })
            QVERIFY(AddCard(QString::fromUtf16(code), QStringLiteral("Kart ") + QString::fromUtf16(code)));
        QVERIFY(AddTransaction(QStringLiteral("ışık"), 2, 0, lira(100), QDate(2026, 3, 1)));
        QVERIFY(AddTransaction(QStringLiteral("IŞIK"), 1, 1, lira(40), QDate(2026, 3, 2)));
        QVERIFY(AddTransaction(QStringLiteral("çam"), 2, 0, lira(10), QDate(2026, 3, 3)));
        QVERIFY(AddTransaction(QStringLiteral("CEM"), 2, 0, lira(20), QDate(2026, 3, 4)));
        QVERIFY(AddTransaction(QStringLiteral("İNCİ"), 2, 0, lira(5), QDate(2026, 3, 5)));

        auto *list = open<DebitCreditScreen>("mnugbor", "Form10");
        QVERIFY(list);
        QCOMPARE(field(0)->Text(), QStringLiteral("ali"));
        QCOMPARE(field(1)->Text(), QStringLiteral("ZEKİ"));
        TypeIntoField(field(0), QStringLiteral("c"));
        TypeIntoField(field(1), QStringLiteral("i")); // İ: after IŞIK, before inci
        list->listOnScreen();
        QCOMPARE(GridRows(list->listWindow()->list()),
            QStringList({ "CEM|Kart CEM|20.00||20.00|", "ÇAM|Kart ÇAM|10.00||10.00|",
                "IŞIK|Kart IŞIK|100.00|40.00|60.00|", "|T O P L A M|130.00|40.00|90.00|" }));

        auto *statement = open<AccountStatementScreen>("mnucareks", "Form16");
        TypeIntoField(field(0), QStringLiteral("ı")); // I: after DENİZ
        statement->listOnScreen();
        QCOMPARE(GridRows(statement->listWindow()->list()),
            QStringList({ "IŞIK|||Kart IŞIK|||", "01.03.2026|2-SMM|||100.00||100.00 B",
                "02.03.2026|1-Nakit||||40.00|60.00 B", "|||Hesap Toplamı :|100.00|40.00|60.00 B", "inci|||Kart inci|||",
                "05.03.2026|2-SMM|||5.00||5.00 B", "|||Hesap Toplamı :|5.00||5.00 B" }));

        // One account with its two ends spelled apart: its rows in both spellings.
        TypeIntoField(field(0), QStringLiteral("ışık"));
        TypeIntoField(field(1), QStringLiteral("IŞIK"));
        statement->listOnScreen();
        QCOMPARE(GridRows(statement->listWindow()->list()),
            QStringList({ "IŞIK|||Kart IŞIK|||", "01.03.2026|2-SMM|||100.00||100.00 B",
                "02.03.2026|1-Nakit||||40.00|60.00 B", "|||Hesap Toplamı :|100.00|40.00|60.00 B" }));
    }

private:
    template <typename ScreenType> ScreenType *open(const char *item, const char *form);
    XText *field(int index) const { return m_screen->findChild<XText *>(QStringLiteral("xtext1_%1").arg(index)); }
    void check(int type, bool on) const
    {
        m_screen->findChild<QCheckBox *>(QStringLiteral("Check1_%1").arg(type))->setChecked(on);
    }

    // A customer with a negative debit, a staff member on the credit side, another account on the
    // debit side whose credits add up below zero, a customer whose debit equals its credit, and
    // transactions of a code without a card. The cards are not stored in code order.
    void seedMixedBook()
    {
        QVERIFY(AddCard(QStringLiteral("K1"), QStringLiteral("Kaya Hukuk"), {}, {}, 0));
        QVERIFY(AddCard(QStringLiteral("X1"), QStringLiteral("Ağaoğlu"), {}, {}, 0));
        QVERIFY(AddCard(QStringLiteral("P1"), QStringLiteral("Ali Veli"), {}, {}, 1));
        QVERIFY(AddCard(QStringLiteral("D1"), QStringLiteral("Deniz Ltd."), {}, {}, 2));
        QVERIFY(AddTransaction(QStringLiteral("K1"), 1, 1, lira(300), QDate(2026, 5, 1))); // entered out of date order
        QVERIFY(AddTransaction(QStringLiteral("K1"), 2, 0, lira(1000), QDate(2026, 3, 1)));
        QVERIFY(AddTransaction(QStringLiteral("K1"), 9, 0, lira(-200), QDate(2026, 3, 2)));
        QVERIFY(AddTransaction(QStringLiteral("P1"), 6, 1, lira(250), QDate(2026, 4, 1)));
        QVERIFY(AddTransaction(QStringLiteral("D1"), 1, 0, lira(100), QDate(2026, 4, 1)));
        QVERIFY(AddTransaction(QStringLiteral("D1"), 9, 1, lira(-40), QDate(2026, 4, 2)));
        QVERIFY(AddTransaction(QStringLiteral("D1"), 9, 0, lira(-150), QDate(2026, 4, 3))); // a debit side below zero
        QVERIFY(AddTransaction(QStringLiteral("X1"), 2, 0, lira(500), QDate(2026, 2, 1)));
        QVERIFY(AddTransaction(QStringLiteral("X1"), 1, 1, lira(500), QDate(2026, 6, 1)));
        QVERIFY(AddTransaction(QStringLiteral("M5"), 1, 0, lira(999), QDate(2026, 6, 1)));
    }

    QByteArray printRaw()
    {
        printSettings().dotMatrix = true;
        AnswerPrinterSetup("Command4", this);
        return m_spooler->receive([this] { QTest::keyClick(field(0)->textBox(), Qt::Key_F8); });
    }

    std::unique_ptr<PrivateSpooler> m_spooler;
    std::unique_ptr<ScreenFixture> m_kit;
    QPointer<AccountRangeScreen> m_screen;
};

template <typename ScreenType> ScreenType *TestAccountReports::open(const char *item, const char *form)
{
    auto *screen = m_kit->open<ScreenType>(item, form);
    m_screen = screen;
    return screen;
}

QTEST_MAIN(TestAccountReports)
#include "tst_accountreports.moc"
