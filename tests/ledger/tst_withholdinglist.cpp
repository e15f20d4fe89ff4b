#include "books/AccessLayer.h"
#include "books/Clock.h"
#include "books/DataFiles.h"
#include "controls/DcList.h"
#include "controls/SpreadsheetExport.h"
#include "controls/XText.h"
#include "ledger/WithholdingListScreen.h"
#include "money/AmountConventions.h"
#include "money/DayNumber.h"
#include "printing/PrintSettings.h"
#include "testsupport/Books.h"
#include "testsupport/Golden.h"
#include "testsupport/PdfPrintout.h"
#include "testsupport/PrivateSpooler.h"
#include "testsupport/ScreenFixture.h"
#include "testsupport/ScreenSuite.h"
#include "testsupport/SheetCells.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QDate today(2026, 11, 16);

} // namespace

class TestWithholdingList : public ScreenSuite<WithholdingListScreen>
{
    Q_OBJECT
public:
    TestWithholdingList()
        : ScreenSuite("mnustoplst", "Form15", QStringLiteral("stopaj"))
    {
    }

protected:
    void prepare() override
    {
        QVERIFY(AddCard(QStringLiteral("K1"), QStringLiteral("Kaya Hukuk Ltd."), QStringLiteral("1234567890"),
            QStringLiteral("Kadıköy")));
    }

private slots:
    void listedByPayerAndDateWhenEntered()
    {
        QVERIFY(AddLedgerRow(0, QDate(2026, 3, 5), { 1000, 200, 0, 180 }, QStringLiteral("K1")));
        QVERIFY(AddLedgerRow(0, QDate(2026, 4, 1), { 500, 100, 0, 90 }, QStringLiteral("A9"))); // no card
        QVERIFY(AddLedgerRow(0, QDate(2026, 2, 1), { 2000, 400, 0, 360 }, QStringLiteral("k1"))); // K1 in lower case
        QVERIFY(AddLedgerRow(0, QDate(2026, 4, 2), { 300, 60, 0, 54 }, QStringLiteral("Ç9"))); // Ç before K
        QVERIFY(AddLedgerRow(0, QDate(2026, 2, 9), { 700, 0, 0, 126 }, QStringLiteral("K1"))); // nothing withheld
        QVERIFY(AddLedgerRow(1, QDate(2026, 2, 10), { 300, 60, 0, 54 }, QStringLiteral("K1"))); // an expense
        QCOMPARE(grid()->ListCount(), 0);
        enterList();
        QCOMPARE(grid()->ListCount(), 4);
        QCOMPARE(shownRow(0), QStringList({ "1", "", "", "", "SMK", "01.04.2026", "500.00", "100.00" }));
        QCOMPARE(shownRow(1), QStringList({ "2", "", "", "", "SMK", "02.04.2026", "300.00", "60.00" }));
        QCOMPARE(shownRow(2),
            QStringList(
                { "3", "Kaya Hukuk Ltd.", "1234567890", "Kadıköy", "SMK", "01.02.2026", "2,000.00", "400.00" }));
        QCOMPARE(shownRow(3),
            QStringList(
                { "4", "Kaya Hukuk Ltd.", "1234567890", "Kadıköy", "SMK", "05.03.2026", "1,000.00", "200.00" }));
        QCOMPARE(total(1), QStringLiteral("3,800.00"));
        QCOMPARE(total(0), QStringLiteral("760.00"));
    }

    void sameDatesDoNotReload()
    {
        bookReceipts(3);
        TypeIntoField(date(0), QStringLiteral("02012026"));
        enterList();
        QCOMPARE(grid()->ListCount(), 2);
        bookReceipts(1); // another row of 1 January, not yet seen
        QVERIFY(AddLedgerRow(0, QDate(2026, 1, 2), { 100, 20, 0, 0 }, QStringLiteral("K1")));
        TypeIntoField(date(0), QStringLiteral("02012026"));
        enterList();
        QCOMPARE(grid()->ListCount(), 2);
        TypeIntoField(date(1), QStringLiteral("02012026"));
        enterList();
        QCOMPARE(grid()->ListCount(), 2); // 2 January twice
        QCOMPARE(total(1), QStringLiteral("200.00"));
    }

    void printedPagesOnTheDotMatrixPrinter()
    {
        bookReceipts(29);
        TypeIntoField(date(0), QStringLiteral("01012026"));
        TypeIntoField(date(1), QStringLiteral("31122026"));
        enterList();
        AnswerPrinterSetup("Command4", this);
        const QByteArray printed = m_spooler->receive([this] { QTest::keyClick(grid()->view(), Qt::Key_F8); });
        QVERIFY(printSettings().dotMatrix);
        QCOMPARE(printSettings().lines, 33);

        COMPARE_GOLDEN(RawPrintout(printed), "ledger/pages/withholding-two-pages.txt");
        QVERIFY(m_spooler->jobTitles().contains(QStringLiteral("Stopaj Listesi")));
    }

    void printedAsPdf()
    {
        bookReceipts(150); // more than a graphic page holds
        enterList();
        const PdfPrintout pdf(
            this, [this] { m_screen->findChild<QPushButton *>(QStringLiteral("Command1"))->click(); },
            [](QWidget *dialog) {
                dialog->findChild<QWidget *>(QStringLiteral("Option1_2"))->setProperty("checked", true);
            });
        QVERIFY(!printSettings().dotMatrix);
        QCOMPARE(pdf.pageCount(), 2);
        for (const char *expected :
            { "StopajListesi", "Dönem:??.??.????\x2d??.??.????", "KayaHukukLtd.", "1234567890", "SMK", "02.01.2026" })
            QVERIFY2(pdf.text(0).contains(QString::fromUtf8(expected)), expected);
        QVERIFY(pdf.text(1).contains(QStringLiteral("TOPLAM:15,000.003,000.00"))); // the totals of all rows
        QVERIFY2(pdf.footingFault(QStringLiteral("T O P L A M :")).isEmpty(), qPrintable(pdf.footingFault("TOPLAM:")));
    }

    void exportedSheet()
    {
        bookReceipts(2);
        TypeIntoField(date(0), QStringLiteral("01012026"));
        enterList();
        QString written;
        SetSheetOpener([&written](const QString &path) {
            written = path;
            return true;
        });
        QTest::keyClick(grid()->view(), Qt::Key_F6);
        SetSheetOpener(nullptr);
        QVERIFY(!written.isEmpty());
        const QString day = QString::number(DayNumber(today));
        QCOMPARE(SheetCells(written),
            QStringList({ "A1=Stopaj Listesi", "B1=#" + day, "C1=Başlangıç :01.01.2026", "D1=Bitiş :??.??.????",
                "A4=S.", "B4=Adı Soyadı", "C4=Vergi No", "D4=V.Dairesi", "E4=Tür", "F4=Dönem", "G4=Brüt", "H4=Vergi",
                "A5=#1", "B5=Kaya Hukuk Ltd.", "C5=1234567890", "D5=Kadıköy", "E5=SMK", "F5=#46023", "G5=#100",
                "H5=#20", "A6=#2", "B6=Kaya Hukuk Ltd.", "C6=1234567890", "D6=Kadıköy", "E6=SMK", "F6=#46024",
                "G6=#100", "H6=#20" }));
        QFile::remove(written);
    }

    void emptyListDoesNothing()
    {
        enterList();
        QCOMPARE(grid()->ListCount(), 0);
        bool opened = false;
        SetSheetOpener([&opened](const QString &) { return opened = true; });
        bool dialogShown = false;
        QTimer watch; // a dialog that should not be there is closed, not waited for
        connect(&watch, &QTimer::timeout, this, [&dialogShown] {
            if (QWidget *modal = QApplication::activeModalWidget()) {
                dialogShown = true;
                modal->close();
            }
        });
        watch.start(10);
        QTest::keyClick(grid()->view(), Qt::Key_F8);
        QTest::keyClick(grid()->view(), Qt::Key_F6);
        SetSheetOpener(nullptr);
        QVERIFY(!dialogShown);
        QVERIFY(!opened);
        QCOMPARE(total(1), QString());
    }

    // More rows than the grid takes: the user is told, the totals and the printout cover them all.
    void rowsBeyondTheGridAreCountedAndSaid()
    {
        QVERIFY(SqlExecute(*dataFiles().db,
            QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 32752) "
                           "INSERT INTO defter (sira, tarih, islem, evrak, cari, ack, brut, stopaj, fon, kdv) "
                           "SELECT 0, ?1 + i % 300, 0, 'E', 'K1', 'Kayıt', 1000000, 200000, 0, 0 FROM n"),
            { DayNumber(QDate(2026, 1, 1)) }));
        enterList();
        QCOMPARE(grid()->ListCount(), 32751);
        QCOMPARE(m_kit->messages().texts(),
            QStringList { QStringLiteral("Liste 32.751 satırda kesildi; tarih aralığını daraltınız.") });
        QCOMPARE(total(1), QStringLiteral("3,275,200.00"));
        QCOMPARE(total(0), QStringLiteral("655,040.00"));
    }

private:
    XText *date(int index) const { return m_screen->findChild<XText *>(QStringLiteral("xtext1_%1").arg(index)); }
    DcList *grid() const { return m_screen->findChild<DcList *>(QStringLiteral("dclist1")); }
    QString total(int index) const
    {
        return m_screen->findChild<QLabel *>(QStringLiteral("Label3_%1").arg(index))->accessibleName();
    }
    QStringList shownRow(int row) const;
    // Into the list from the last date field, as Enter does.
    void enterList()
    {
        date(1)->setFocus();
        QTest::keyClick(date(1)->textBox(), Qt::Key_Return);
    }
    void bookReceipts(int count);

};

QStringList TestWithholdingList::shownRow(int row) const
{
    QStringList texts;
    for (int column = 0; column < grid()->view()->model()->columnCount(); ++column)
        texts << grid()->view()->model()->index(row, column).data().toString();
    return texts;
}

// count receipts of K1, 100 each with 20 withheld, one a day from 1 January.
void TestWithholdingList::bookReceipts(int count)
{
    for (int n = 0; n < count; ++n)
        QVERIFY(AddLedgerRow(0, QDate(2026, 1, 1).addDays(n), { 100, 20, 0, 0 }, QStringLiteral("K1")));
}

QTEST_MAIN(TestWithholdingList)
#include "tst_withholdinglist.moc"
