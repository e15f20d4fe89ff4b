#include "accounts/AccountLookup.h"
#include "accounts/AccountTransactionsScreen.h"
#include "accounts/CashBookScreen.h"
#include "books/Clock.h"
#include "books/Postings.h"
#include "controls/DcCellEditor.h"
#include "controls/DcList.h"
#include "controls/XText.h"
#include "money/AmountConventions.h"
#include "printing/PrintSettings.h"
#include "printing/PrinterSetupDialog.h"
#include "testsupport/Books.h"
#include "testsupport/Golden.h"
#include "testsupport/PdfPrintout.h"
#include "testsupport/PrivateSpooler.h"
#include "testsupport/QueryTexts.h"
#include "testsupport/ScreenFixture.h"
#include "testsupport/ScreenSuite.h"
#include "testsupport/Typing.h"

#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

const QDate today(2026, 11, 16);

void post(const QString &code, int islem, int ba, qint64 units, QDate date = today, const QString &ack = QString())
{
    QVERIFY(AddAccountPosting({ code, date, islem, QString(), ack, ba, Currency::fromUnits(units) }) > 0);
}

} // namespace

class TestCashBook : public ScreenSuite<CashBookScreen>
{
    Q_OBJECT
public:
    TestCashBook()
        : ScreenSuite("mnukasa", "Form7", QStringLiteral("kasa"))
    {
    }

protected:
    void prepare() override
    {
        QVERIFY(AddCard(QStringLiteral("K1"), QStringLiteral("Kaya Hukuk")));
        QVERIFY(AddCard(QStringLiteral("K2"), QStringLiteral("Deniz Ltd.")));
    }

private slots:
    void opensOnToday()
    {
        QCOMPARE(date()->Text(), QStringLiteral("16.11.2026"));
        QVERIFY(date()->textBox()->hasFocus());
        QVERIFY(!grid()->Editable());
    }

    void dayWithCarryOver()
    {
        seedDay();
        enterGrid();
        QVERIFY(grid()->Editable());
        QCOMPARE(grid()->ListCount(), 3);
        QCOMPARE(shownRow(0), QStringList({ "K2", "E", "", "Emanet iadesi", "", "40.00" }));
        QCOMPARE(shownRow(1), QStringList({ "K1", "", "", "Tahsilat", "100.00", "" }));
        QCOMPARE(shownRow(2), QStringList({ "", "", "", "", "", "" }));
        QCOMPARE(positions(), QStringList({ "100.00", "40.00", "300.00", "", "360.00", "" }));
        QCOMPARE(grid()->CurSat(), 2);
    }

    void carryOverOnOneSide_data()
    {
        QTest::addColumn<qint64>("in");
        QTest::addColumn<qint64>("out");
        QTest::addColumn<QStringList>("shown");
        QTest::newRow("more in") << qint64(500) << qint64(200) << QStringList({ "", "", "300.00", "", "300.00", "" });
        QTest::newRow("more out") << qint64(200) << qint64(500) << QStringList({ "", "", "", "300.00", "", "300.00" });
        QTest::newRow("equal") << qint64(200) << qint64(200) << QStringList({ "", "", "", "", "", "" });
    }

    void carryOverOnOneSide()
    {
        QFETCH(qint64, in);
        QFETCH(qint64, out);
        QFETCH(QStringList, shown);
        post(QStringLiteral("K1"), 1, 1, in, today.addDays(-5));
        post(QStringLiteral("K1"), 3, 0, out, today.addDays(-4));
        enterGrid();
        QCOMPARE(grid()->ListCount(), 1); // a day without movements: the empty row alone
        QCOMPARE(positions(), shown);
    }

    void typedRowIsStored()
    {
        post(QStringLiteral("k1"), 2, 0, 1000, today.addDays(-10)); // the code in lower case
        enterGrid();
        date()->setText(QStringLiteral("17.11.2026")); // changed behind the list: the row keeps the listed day
        TypeGridRow(grid(), { "K1" });
        QCOMPARE(label("cariUnvan"), QStringLiteral("Kaya Hukuk"));
        QCOMPARE(label("cariBakiye"), QStringLiteral("1,000.00"));
        for (const QString &cell : QStringList { "e", "F1", "Nakit ödeme", "250", "" }) {
            typeKeys(grid()->editor(), cell);
            QTest::keyClick(grid()->editor(), Qt::Key_Return);
        }
        QCOMPARE(stored().last(), QStringLiteral("K1:46342:3:F1:Nakit ödeme:1:2500000"));
        QCOMPARE(grid()->Caption(0, CashBookScreen::Oto), QStringLiteral("2"));
        QCOMPARE(grid()->Caption(0, CashBookScreen::Em), QStringLiteral("E"));
        QCOMPARE(grid()->ListCount(), 2);
        QCOMPARE(positions(), QStringList({ "250.00", "", "", "", "250.00", "" }));
        QVERIFY(m_kit->messages().entries().isEmpty());
    }

    void bothSidesKeepTheCredit()
    {
        enterGrid();
        TypeGridRow(grid(), { "K2", "x", "", "", "100", "30" });
        QCOMPARE(stored(), QStringList { "K2:46342:1:::0:300000" });
        QCOMPARE(grid()->Caption(0, CashBookScreen::Borc), QStringLiteral("0"));
        QCOMPARE(shownRow(0).mid(4), QStringList({ "", "30.00" }));
        QCOMPARE(positions(), QStringList({ "", "30.00", "", "", "", "30.00" }));
    }

    void rowWithoutAmountIsRefused()
    {
        enterGrid();
        TypeGridRow(grid(), { "K2", "", "", "Boş", "", "" });
        QCOMPARE(m_kit->messages().texts(), QStringList { "Tutar Yazılmamış.." });
        QCOMPARE(m_kit->messages().entries().first().kind, Message::Kind::Notice);
        QVERIFY(stored().isEmpty());
    }

    void unknownCodeIsEmptied()
    {
        enterGrid();
        TypeGridRow(grid(), { "X9" });
        QCOMPARE(grid()->Text(CashBookScreen::Kod), QString());
        QCOMPARE(grid()->CurrentCol(), 1);
        QCOMPARE(label("cariKod"), QString());
    }

    void lookupFillsTheCodeCell()
    {
        enterGrid();
        QTest::keyClick(grid()->view(), Qt::Key_Return);
        QTimer::singleShot(0, this, [] {
            auto *lookup = qobject_cast<AccountLookup *>(QApplication::activeModalWidget());
            QVERIFY(lookup);
            auto *cards = lookup->findChild<DcList *>(QStringLiteral("dclist1"));
            QVERIFY(cards->FindByName(QStringLiteral("kod"), QStringLiteral("K2")));
            // Chosen from inside the dialog's own event loop, which may not run yet while it shows.
            QTimer::singleShot(0, lookup, [lookup] { lookup->choose(); });
        });
        QTest::keyClick(grid()->editor(), Qt::Key_F2);
        QCOMPARE(grid()->editor()->text(), QStringLiteral("K2"));
        QCOMPARE(SelectedAccountCode(), QString());
        QCOMPARE(m_kit->window().focusWidget(), grid()->editor()); // where the window gives the keyboard back
    }

    void invalidDateListsNothing()
    {
        post(QStringLiteral("K1"), 1, 1, 100);
        date()->setText(QStringLiteral("31.02.2026"));
        enterGrid();
        QCOMPARE(m_kit->messages().texts(), QStringList { "Hatalı Tarih.." });
        QVERIFY(!grid()->Editable());
        QCOMPARE(grid()->ListCount(), 0);
    }

    void dayIsListedOncePerVisit()
    {
        enterGrid();
        post(QStringLiteral("K1"), 1, 1, 100); // another screen posts meanwhile
        TypeGridRow(grid(), { "K2", "", "", "", "5", "" }); // back from the editor: no new listing
        QCOMPARE(grid()->ListCount(), 2);
        grid()->view()->clearFocus(); // away to another window and back
        grid()->view()->setFocus();
        QCOMPARE(grid()->ListCount(), 2);
        QTest::keyClick(grid()->view(), Qt::Key_Escape);
        QVERIFY(date()->textBox()->hasFocus());
        enterGrid(); // a new visit lists the day again
        QCOMPARE(grid()->ListCount(), 3);
    }

    // With a cell open, a click into the date field ends the edit as Esc does (the row stays as
    // stored); a changed date is listed on the way back, and nothing moves to it.
    void clickIntoTheDateEndsTheEdit()
    {
        post(QStringLiteral("K1"), 1, 1, 100);
        const QStringList before = stored();
        enterGrid();
        QTest::keyClick(grid()->view(), Qt::Key_Up);
        QTest::keyClick(grid()->view(), Qt::Key_Return);
        typeKeys(grid()->editor(), QStringLiteral("K2"));
        QCOMPARE(grid()->CurrentMode(), 2);
        QTest::mouseClick(date()->textBox(), Qt::LeftButton);
        QTRY_VERIFY(date()->textBox()->hasFocus());
        QVERIFY(grid()->CurrentMode() != 2); // no cell open
        QCOMPARE(shownRow(0).first(), QStringLiteral("K1"));
        TypeIntoField(date(), QStringLiteral("17112026"));
        QTest::mouseClick(grid()->view()->viewport(), Qt::LeftButton, {}, QPoint(5, 5));
        QTRY_COMPARE(grid()->ListCount(), 1); // 17.11: no rows yet
        QCOMPARE(stored(), before);
        QVERIFY(m_kit->messages().entries().isEmpty());
    }

    // A click on the list while a cell is open leaves the keys with the open cell: Enter goes on.
    void clickOnTheListKeepsTheKeys()
    {
        post(QStringLiteral("K1"), 1, 1, 100);
        enterGrid();
        QTest::keyClick(grid()->view(), Qt::Key_Up);
        QTest::keyClick(grid()->view(), Qt::Key_Return);
        QTest::mouseClick(grid()->view()->viewport(), Qt::LeftButton, {},
            grid()->view()->visualRect(grid()->view()->model()->index(0, 3)).center());
        QCOMPARE(QApplication::focusWidget(), grid()->editor());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(grid()->CurrentCol(), 1);
    }

    void rowsCrossBetweenScreens()
    {
        post(QStringLiteral("K1"), 3, 1, 120); // a deposit receipt's posting
        enterGrid();
        QCOMPARE(shownRow(0), QStringList({ "K1", "E", "", "", "120.00", "" }));
        TypeGridRow(grid(), { "K1", "", "", "Nakit", "", "45" });
        auto *accounts = m_kit->open<AccountTransactionsScreen>("mnucarhar", "Form4");
        QVERIFY(accounts);
        auto *code = accounts->findChild<XText *>(QStringLiteral("xtext1"));
        TypeIntoField(code, QStringLiteral("K1"));
        QTest::keyClick(code->textBox(), Qt::Key_Return);
        auto *rows = accounts->findChild<DcList *>(QStringLiteral("dclist1"));
        QCOMPARE(rows->ListCount(), 3);
        QCOMPARE(rows->Caption(0, AccountTransactionsScreen::Islem), QStringLiteral("1-Nakit"));
        QCOMPARE(
            rows->Caption(0, AccountTransactionsScreen::Ba), QStringLiteral("B")); // cash out: the account is debited
        QCOMPARE(rows->Caption(1, AccountTransactionsScreen::Islem), QStringLiteral("3-Emanet"));
        QCOMPARE(rows->Caption(1, AccountTransactionsScreen::Ba), QStringLiteral("A"));
    }

    void deleteAsksFirst()
    {
        seedDay();
        enterGrid();
        grid()->ChngSat(1);
        m_kit->messages().answerNext(true);
        QTest::keyClick(grid()->view(), Qt::Key_Delete);
        QCOMPARE(m_kit->messages().texts(), QStringList { "Hareket Silinecek Eminmisiniz ?" });
        QCOMPARE(grid()->ListCount(), 2);
        QCOMPARE(positions(), QStringList({ "", "40.00", "300.00", "", "260.00", "" }));
        QCOMPARE(
            QueryTexts(QStringLiteral("SELECT count(*) AS n FROM carhar"), QStringLiteral("n")), QStringList { "5" });
    }

    void printedDayOnTheDotMatrixPrinter_data()
    {
        QTest::addColumn<QString>("typedDay"); // "": F8 in the list; else F8 in the date field after typing it
        QTest::addColumn<QString>("pages");
        QTest::newRow("from the list") << QString() << u"accounts/pages/cash-book-day.txt"_s;
        QTest::newRow("from the date field, as opened") << u"16112026"_s << u"accounts/pages/cash-book-day.txt"_s;
        QTest::newRow("from the date field, another day")
            << u"17112026"_s << u"accounts/pages/cash-book-next-day.txt"_s;
    }

    void printedDayOnTheDotMatrixPrinter()
    {
        QFETCH(QString, typedDay);
        QFETCH(QString, pages);
        seedDay();
        if (typedDay.isEmpty())
            enterGrid();
        else
            TypeIntoField(date(), typedDay);
        printSettings().dotMatrix = true;
        AnswerPrinterSetup("Command4", this);
        QWidget *focused = typedDay.isEmpty() ? static_cast<QWidget *>(grid()->view()) : date()->textBox();
        COMPARE_GOLDEN(RawPrintout(m_spooler->receive([focused] { QTest::keyClick(focused, Qt::Key_F8); })), pages);
        QVERIFY(m_spooler->jobTitles().contains(QStringLiteral("Kasa Defteri")));
    }

    void printedDayAsPdf()
    {
        seedDay();
        enterGrid();
        const PdfPrintout pdf(this, [this] { m_screen->findChild<QPushButton *>(QStringLiteral("yazdir"))->click(); });
        QCOMPARE(pdf.pageCount(), 1);
        for (const char *expected : { "KasaDefteri", "Tarih:", "16.11.2026", "Açıklama", "Emanetiadesi", "Tahsilat",
                 "TOPLAM:", "DEVREDEN:", "360.00" })
            QVERIFY2(pdf.text(0).contains(QString::fromUtf8(expected)), qPrintable(pdf.text(0)));
        QVERIFY2(
            pdf.footingFault(QStringLiteral("GENEL TOPLAM:")).isEmpty(), qPrintable(pdf.footingFault("GENEL TOPLAM:")));
    }

private:
    XText *date() const { return m_screen->findChild<XText *>(QStringLiteral("xtext1")); }
    DcList *grid() const { return m_screen->findChild<DcList *>(QStringLiteral("dclist1")); }
    QString position(int row, int column) const
    {
        return m_screen->findChild<QLabel *>(QStringLiteral("kasa_%1_%2").arg(row).arg(column))->accessibleName();
    }
    QStringList positions() const;
    QString label(const char *name) const
    {
        return m_screen->findChild<QLabel *>(QString::fromLatin1(name))->accessibleName();
    }
    void enterGrid() { QTest::keyClick(date()->textBox(), Qt::Key_Return); }
    QStringList shownRow(int row) const;
    QStringList stored() const;
    void seedDay();
};

QStringList TestCashBook::positions() const
{
    QStringList texts;
    for (int row = 0; row < 3; ++row)
        texts << position(row, 0) << position(row, 1);
    return texts;
}

QStringList TestCashBook::shownRow(int row) const
{
    QStringList texts;
    for (int column = 0; column < 6; ++column)
        texts << grid()->view()->model()->index(row, column).data().toString();
    return texts;
}

QStringList TestCashBook::stored() const
{
    return StoredRows(u"kod, tarih, islem, evrak, ack, ba, tutar FROM carhar ORDER BY oto"_s, u':');
}

// Carried: 500 in, 200 out, a receipt that is no cash; the day: 100 in, a 40 deposit out.
void TestCashBook::seedDay()
{
    post(QStringLiteral("K1"), 1, 1, 500, today.addDays(-3));
    post(QStringLiteral("K2"), 1, 0, 200, today.addDays(-1));
    post(QStringLiteral("K1"), 2, 0, 7000, today.addDays(-2));
    post(QStringLiteral("K1"), 1, 1, 100, today, QStringLiteral("Tahsilat"));
    post(QStringLiteral("K2"), 3, 0, 40, today, QStringLiteral("Emanet iadesi"));
    post(QStringLiteral("K2"), 1, 1, 900, today.addDays(1));
}

QTEST_MAIN(TestCashBook)
#include "tst_cashbook.moc"
