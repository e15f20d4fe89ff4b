#include "books/Clock.h"
#include "books/Parameters.h"
#include "controls/DcList.h"
#include "controls/XText.h"
#include "ledger/OfficialLedgerList.h"
#include "ledger/OfficialLedgerScreen.h"
#include "money/AmountConventions.h"
#include "printing/DosPrint.h"
#include "printing/PrintSettings.h"
#include "testsupport/Books.h"
#include "testsupport/Golden.h"
#include "testsupport/PdfPrintout.h"
#include "testsupport/PrivateSpooler.h"
#include "testsupport/RecordingRawChannel.h"
#include "testsupport/ScreenFixture.h"
#include "testsupport/ScreenSuite.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

const QDate today(2026, 11, 16);
const LedgerAmountsInUnits fee { 1000, 200, 10, 180 };

// The n-th income row of the year (1-based), one a day from 1 January; entered last row first,
// so the book's order is the dates', not the entries'.
void bookIncome(int count, const LedgerAmountsInUnits &amounts = fee)
{
    for (int n = count; n >= 1; --n)
        QVERIFY(AddLedgerRow(0, QDate(2026, 1, 1).addDays(n - 1), amounts, QString(), QStringLiteral("E%1").arg(n),
            QStringLiteral("Kayıt %1").arg(n)));
}

} // namespace

class TestOfficialLedger : public ScreenSuite<OfficialLedgerScreen>
{
    Q_OBJECT
public:
    TestOfficialLedger()
        : ScreenSuite("mnuresmi", "Form12", QStringLiteral("defter"))
    {
    }

protected:
    void prepare() override
    {
        parameters().unvan = QStringLiteral("  Av. Deniz Kaya ");
    }

private slots:
    void listingFromNumberFiveCarriesTheRowsBefore()
    {
        bookIncome(6);
        QVERIFY(AddLedgerRow(0, QDate(2025, 12, 31), fee)); // last year's
        QVERIFY(AddLedgerRow(1, QDate(2026, 1, 2), fee)); // the other side
        TypeIntoField(field(0), QStringLiteral("5"));
        QTest::keyClick(field(0)->textBox(), Qt::Key_F7);
        OfficialLedgerList *list = m_screen->listScreen();
        QVERIFY(list);
        QCOMPARE(list->windowTitle(), QStringLiteral("Serbest Meslek Defteri (Gelir)"));
        QCOMPARE(shownColumn(OfficialLedgerList::Sira), QStringList({ "", "5", "6" }));
        QCOMPARE(shownColumn(OfficialLedgerList::Ack), QStringList({ "Devir....", "Kayıt 5", "Kayıt 6" }));
        QCOMPARE(shownColumn(OfficialLedgerList::Tarih), QStringList({ "", "05.01.2026", "06.01.2026" }));
        QCOMPARE(shownColumn(OfficialLedgerList::Matrah), QStringList({ "4,000.00", "1,000.00", "1,000.00" }));
        QCOMPARE(shownColumn(5), QStringList({ "720.00", "180.00", "180.00" })); // Kdv: no withholding column

        field(0)->setValue(1); // a second listing replaces the first
        m_screen->listOnScreen();
        QCOMPARE(m_screen->listScreen(), list);
        QCOMPARE(shownColumn(OfficialLedgerList::Sira), QStringList({ "1", "2", "3", "4", "5", "6" }));
    }

    void firstDateContinuesTheNumbering()
    {
        for (int month = 1; month <= 4; ++month) // the March row stands on the first date
            QVERIFY(AddLedgerRow(0, QDate(2026, month, 1), fee, QString(), QStringLiteral("E%1").arg(month)));
        TypeIntoField(field(2), QStringLiteral("01032026"));
        m_screen->listOnScreen();
        QCOMPARE(shownColumn(OfficialLedgerList::Sira), QStringList({ "3", "4" }));
        QCOMPARE(shownColumn(OfficialLedgerList::Evrak), QStringList({ "E3", "E4" }));

        TypeIntoField(field(0), QStringLiteral("4")); // both ranges: the March row is carried in
        m_screen->listOnScreen();
        QCOMPARE(shownColumn(OfficialLedgerList::Ack), QStringList({ "Devir....", "Kayıt" }));
        QCOMPARE(shownColumn(OfficialLedgerList::Matrah), QStringList({ "1,000.00", "1,000.00" }));
    }

    void lastDateAndLastNumberEndTheList()
    {
        bookIncome(6);
        TypeIntoField(field(3), QStringLiteral("04012026"));
        m_screen->listOnScreen();
        QCOMPARE(shownColumn(OfficialLedgerList::Sira), QStringList({ "1", "2", "3", "4" }));
        TypeIntoField(field(1), QStringLiteral("2"));
        TypeIntoField(field(2), QStringLiteral("??.??.????")); // not a date: no bound
        m_screen->listOnScreen();
        QCOMPARE(shownColumn(OfficialLedgerList::Sira), QStringList({ "1", "2" }));
    }

    void columnsFollowTheSideAndTheSwitches_data()
    {
        QTest::addColumn<int>("side");
        QTest::addColumn<bool>("withholding");
        QTest::addColumn<bool>("fund");
        QTest::addColumn<qint64>("withheld"); // VAT withheld by the payer
        QTest::addColumn<QStringList>("columns");
        const QStringList fixed = { "sira", "tarih", "evrak", "ack", "matrah" };
        QTest::newRow("gelir") << 0 << false << false << qint64(0) << fixed + QStringList { "kdv" };
        QTest::newRow("gelir, stopaj") << 0 << true << false << qint64(0) << fixed + QStringList { "stopaj", "kdv" };
        QTest::newRow("gelir, both") << 0 << true << true << qint64(0)
                                     << fixed + QStringList { "stopaj", "fon", "kdv" };
        QTest::newRow("gelir, VAT withheld")
            << 0 << false << false << qint64(45) << fixed + QStringList { "kdv", "tevkifat" };
        QTest::newRow("gider ignores both") << 1 << true << true << qint64(0) << fixed + QStringList { "kdv" };
    }

    void columnsFollowTheSideAndTheSwitches()
    {
        QFETCH(int, side);
        QFETCH(bool, withholding);
        QFETCH(bool, fund);
        QFETCH(qint64, withheld);
        QFETCH(QStringList, columns);
        QVERIFY(AddLedgerRow(side, QDate(2026, 12, 31), { 500, 100, 5, 90, withheld })); // the year's last day
        m_screen->findChild<QComboBox *>(QStringLiteral("Combo1"))->setCurrentIndex(side);
        m_screen->findChild<QCheckBox *>(QStringLiteral("Check1_0"))->setChecked(withholding);
        m_screen->findChild<QCheckBox *>(QStringLiteral("Check1_1"))->setChecked(fund);
        m_screen->listOnScreen();
        const DcList *list = m_screen->listScreen()->list();
        QStringList names;
        for (int c = 0; c < list->view()->model()->columnCount(); ++c)
            names << list->SectionName(c).toLower();
        QCOMPARE(names, columns);
        QCOMPARE(list->CaptionByName(0, QStringLiteral("kdv")), QStringLiteral("90"));
        QCOMPARE(m_screen->listScreen()->windowTitle(),
            side == 0 ? QStringLiteral("Serbest Meslek Defteri (Gelir)")
                      : QStringLiteral("Serbest Meslek Defteri (Gider)"));
    }

    void printedPagesCarryTheirTotals_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<bool>("pageNumbers");
        QTest::addColumn<QString>("pages");
        // A page holds six lines of head and 54 rows before the line count reaches 60.
        QTest::newRow("two pages") << 56 << false << u"ledger/pages/official-two-pages.txt"_s;
        QTest::newRow("the last row ends a page") << 54 << false << u"ledger/pages/official-last-row-ends-page.txt"_s;
        QTest::newRow("page numbers") << 56 << true << u"ledger/pages/official-page-numbers.txt"_s;
    }

    void printedPagesCarryTheirTotals()
    {
        QFETCH(int, rows);
        QFETCH(bool, pageNumbers);
        QFETCH(QString, pages);
        bookIncome(rows);
        const QByteArray printed = printRaw([pageNumbers](QWidget *dialog) {
            dialog->findChild<QCheckBox *>(QStringLiteral("Check1_2"))->setChecked(pageNumbers);
        });
        QVERIFY(m_screen->findChild<QCheckBox *>(QStringLiteral("Check1_0"))->isChecked());
        COMPARE_GOLDEN(RawPrintout(printed), pages);
    }

    void onePageBooks_data()
    {
        QTest::addColumn<int>("side");
        QTest::addColumn<qint64>("withheld");
        QTest::addColumn<QString>("pages");
        QTest::newRow("gider: the VAT only") << 1 << qint64(0) << u"ledger/pages/official-expense.txt"_s;
        // The withheld VAT's column takes 13 of the text's 42 columns: the page keeps its width.
        QTest::newRow("gelir with VAT withheld by the payer")
            << 0 << qint64(81) << u"ledger/pages/official-income-vat-withheld.txt"_s;
    }

    void onePageBooks()
    {
        QFETCH(int, side);
        QFETCH(qint64, withheld);
        QFETCH(QString, pages);
        QVERIFY(AddLedgerRow(side, QDate(2026, 3, 2), { 500, side == 0 ? 100 : 0, 0, 90, withheld }, QString(),
            QStringLiteral("F7"), QStringLiteral("Kırtasiye")));
        m_screen->findChild<QComboBox *>(QStringLiteral("Combo1"))->setCurrentIndex(side);
        printSettings().dotMatrix = true;
        AnswerPrinterSetup("Command4", this);
        COMPARE_GOLDEN(RawPrintout(m_spooler->receive([this] { m_screen->print(); })), pages);
        QVERIFY(m_spooler->jobTitles().contains(QStringLiteral("SERBEST MESLEK DEFTERİ")));
    }

    void printedAsPdf()
    {
        bookIncome(150); // more than a graphic page holds
        const PdfPrintout pdf(
            this, [this] { m_screen->findChild<QPushButton *>(QStringLiteral("Command1"))->click(); });
        QVERIFY(pdf.pageCount() >= 2);
        const QString first = pdf.text(0), last = pdf.text(pdf.pageCount() - 1);
        for (const char *expected :
            { "SERBESTMESLEKDEFTERİ(GELIR)", "Ünvan:", "Av.DenizKaya", "Hes.Kdv.", "Kayıt1", "1,380.00" })
            QVERIFY2(first.contains(QString::fromUtf8(expected)), expected);
        QVERIFY(!first.contains(QStringLiteral("NakliYekun:")));
        for (const char *expected : { "NakliYekun:", "Kayıt150", "150,000.00", "207,000.00" })
            QVERIFY2(last.contains(QString::fromUtf8(expected)), expected);
        QVERIFY2(pdf.footingFault(QStringLiteral("T O P L A M :")).isEmpty(), qPrintable(pdf.footingFault("TOPLAM:")));
    }

    void numbersWiderThanTheirColumnsAreMarked_data()
    {
        QTest::addColumn<bool>("dotMatrix");
        QTest::newRow("dot matrix") << true;
        QTest::newRow("PDF") << false;
    }

    // A withholding of 10,000,000.00 in the 12-wide "Stopaj" column: marks and a message that names
    // it, never "0,000,000.00".
    void numbersWiderThanTheirColumnsAreMarked()
    {
        QFETCH(bool, dotMatrix);
        QVERIFY(AddLedgerRow(0, QDate(2026, 2, 1), { 50000000, 10000000, 0, 0 }));
        QString printed;
        if (dotMatrix) {
            printed = QString::fromLatin1(printRaw());
        } else {
            const PdfPrintout pdf(
                this, [this] { m_screen->findChild<QPushButton *>(QStringLiteral("Command1"))->click(); });
            printed = pdf.text(0);
        }
        QVERIFY2(printed.contains(QString(12, u'#')), qPrintable(printed));
        QVERIFY(printed.contains(QStringLiteral("50,000,000.00"))); // the 15-wide columns take theirs
        QVERIFY(printed.contains(QStringLiteral("60,000,000.00")));
        printed.remove(QStringLiteral("50,000,000.00")).remove(QStringLiteral("60,000,000.00"));
        QVERIFY(!printed.contains(QStringLiteral("0,000,000.00")));
        QCOMPARE(m_kit->messages().texts(),
            QStringList { QStringLiteral("Sütunlarına sığmayan sayılar \"#\" ile yazdırıldı:\n10,000,000.00") });
    }

    void holderNameIsNeeded()
    {
        bookIncome(2);
        parameters().unvan = QStringLiteral("   ");
        const QByteArray before = m_spooler->received();
        printSettings().dotMatrix = true;
        AnswerPrinterSetup("Command4", this);
        m_screen->print();
        QCOMPARE(m_kit->messages().texts(), QStringList { "Parametrelerden Unvanı Doldurunuz" });
        QCOMPARE(shownColumn(OfficialLedgerList::Sira), QStringList({ "1", "2" })); // listed all the same
        QTest::qWait(300);
        QCOMPARE(m_spooler->received(), before);
    }

    void printerThatDoesNotOpen()
    {
        bookIncome(1);
        RecordingRawChannel::Log log;
        SetRawChannel(std::make_unique<RecordingRawChannel>(&log, false));
        printSettings().dotMatrix = true;
        AnswerPrinterSetup("Command4", this);
        m_screen->print();
        SetRawChannel(nullptr);
        QCOMPARE(
            m_kit->messages().texts(), QStringList { "Yazıcı Açılamadı\nYazıcı: defter\nNeden: yazıcı bulunamadı" });
        QVERIFY(log.writes.isEmpty());
    }

private:
    XText *field(int index) const { return m_screen->findChild<XText *>(QStringLiteral("xtext1_%1").arg(index)); }
    QStringList shownColumn(int column) const { return GridColumn(m_screen->listScreen()->list(), column); }
    QByteArray printRaw(const std::function<void(QWidget *)> &dialog = {});

};

// Prints the income book on the dot-matrix queue and answers what the printer received.
QByteArray TestOfficialLedger::printRaw(const std::function<void(QWidget *)> &dialog)
{
    printSettings().dotMatrix = true;
    AnswerPrinterSetup("Command4", this, dialog);
    return m_spooler->receive([this] { QTest::keyClick(field(0)->textBox(), Qt::Key_F8); });
}

QTEST_MAIN(TestOfficialLedger)
#include "tst_officialledger.moc"
