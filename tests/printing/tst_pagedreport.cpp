#include "money/Currency.h"
#include "printing/DosPrint.h"
#include "printing/PagedReport.h"
#include "printing/PrintSettings.h"
#include "printing/Prnx.h"
#include "testsupport/Golden.h"
#include "testsupport/PdfText.h"
#include "testsupport/RecordingRawChannel.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int linesPerPage = 12; // with room for a footing of 6: six lines of head and rows

ReportLayout testLayout(bool totalsOnOwnPage = false)
{
    ReportLayout layout;
    layout.columns = { NumberColumn("no", "No", 4, 0), TextColumn("ack", "Açıklama", 20, 0),
        AmountColumn("tutar", "Tutar", 12, 0), AmountColumn("kdv", "Kdv", 10, 0) };
    layout.pageTop = [](Prnx &prnx) { prnx.Lprint(QStringLiteral("DENEME LİSTESİ"), 48, true, 2, true); };
    layout.carryCaption = QStringLiteral("Nakli Yekun :");
    layout.boldTotals = true;
    layout.totalsOnOwnPage = totalsOnOwnPage;
    return layout;
}

QVariantList row(int number)
{
    return { number, QStringLiteral("Satır %1").arg(number), QVariant::fromValue(Currency::fromUnits(100 * number)),
        QVariant::fromValue(Currency::fromUnits(18 * number)) };
}

} // namespace

class TestPagedReport : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_log = RecordingRawChannel::Log();
        ResetPrintSettings();
        printSettings().lines = linesPerPage;
        SetRawChannel(std::make_unique<RecordingRawChannel>(&m_log));
    }

    void cleanup() { SetRawChannel(nullptr); }

    void pagesCarryTheirTotals()
    {
        printRows(6, false);
        COMPARE_GOLDEN(RawPrintout(m_log.bytes()), "printing/pages/carried-totals.txt");
        QCOMPARE(m_log.pageEnds, 3);
    }

    void lastRowFillingAPageEndsThere_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<bool>("totalsOnOwnPage");
        QTest::addColumn<int>("pages");
        QTest::addColumn<QString>("lastTotal");
        QTest::newRow("page ends with the book") << 5 << false << 2 << u"1,500.00"_s;
        QTest::newRow("totals on a page of their own") << 5 << true << 3 << u"1,500.00"_s;
        QTest::newRow("footing after a short page") << 4 << true << 2 << u"1,000.00"_s;
        QTest::newRow("nothing printed") << 0 << true << 0 << u""_s;
    }

    void lastRowFillingAPageEndsThere()
    {
        QFETCH(int, rows);
        QFETCH(bool, totalsOnOwnPage);
        QFETCH(int, pages);
        QFETCH(QString, lastTotal);
        printRows(rows, totalsOnOwnPage);
        QCOMPARE(m_log.pageEnds, pages);
        const QByteArray bytes = m_log.bytes();
        QCOMPARE(bytes.count("\r\n"), pages * linesPerPage);
        if (pages > 0) {
            const QByteArray lastPage = bytes.split('\n').mid((pages - 1) * linesPerPage).join('\n');
            QVERIFY(lastPage.contains(lastTotal.toLatin1()));
            QCOMPARE(lastPage.contains("Nakli Yekun"), pages > 1);
        }
    }

    void graphicPagesAsPdf()
    {
        QTemporaryDir dir;
        PrintSettings &settings = printSettings();
        settings.target = PrintSettings::GraphicTarget::PdfFile;
        settings.pdfFile = dir.filePath(QStringLiteral("liste.pdf"));
        Prnx prnx;
        QVERIFY(prnx.OpenPrinter(Prnx::Graphic, QStringLiteral("Deneme")));
        const int rowsPerPage = settings.lines - 6 - 3; // the lines that fit, less the head and the footing
        PagedReport report(prnx, testLayout());
        for (int number = 1; number <= rowsPerPage + 1; ++number)
            report.printRow(row(number));
        report.finish();
        prnx.ClosePrinter();

        const QStringList pages = PdfText(settings.pdfFile).split(u'\f', Qt::SkipEmptyParts);
        QCOMPARE(pages.size(), 2);
        QVERIFY2(pages[0].contains(QStringLiteral("DENEME LİSTESİ")), qPrintable(pages[0]));
        QVERIFY(pages[0].contains(QStringLiteral("T O P L A M :")));
        QVERIFY(!pages[0].contains(QStringLiteral("Nakli Yekun :")));
        QVERIFY2(pages[1].contains(QStringLiteral("Nakli Yekun :")), qPrintable(pages[1]));
        QVERIFY(pages[1].contains(QStringLiteral("Satır %1").arg(rowsPerPage + 1)));
    }

    void printedCells_data()
    {
        QTest::addColumn<QVariant>("cell");
        QTest::addColumn<QString>("printed");
        QTest::newRow("amount") << QVariant::fromValue(Currency::fromString(QStringLiteral("1234.5"))) << u"1,234.50"_s;
        QTest::newRow("zero amount: blank") << QVariant::fromValue(Currency()) << u""_s;
        QTest::newRow("number") << QVariant(10001) << u"10001"_s;
        QTest::newRow("zero number: blank") << QVariant(0) << u""_s;
        QTest::newRow("date") << QVariant(QDate(2026, 12, 31)) << u"31.12.2026"_s;
        QTest::newRow("text as it is") << QVariant(QStringLiteral(" 0 ")) << u" 0 "_s;
    }

    void printedCells()
    {
        QFETCH(QVariant, cell);
        QFETCH(QString, printed);
        QCOMPARE(PrintedCellText(cell), printed);
    }

private:
    void printRows(int count, bool totalsOnOwnPage);
    RecordingRawChannel::Log m_log;
};

void TestPagedReport::printRows(int count, bool totalsOnOwnPage)
{
    Prnx prnx;
    QVERIFY(prnx.OpenPrinter(Prnx::Raw, QStringLiteral("Deneme")));
    PagedReport report(prnx, testLayout(totalsOnOwnPage));
    for (int number = 1; number <= count; ++number)
        report.printRow(row(number));
    report.finish();
    prnx.ClosePrinter();
}

QTEST_MAIN(TestPagedReport)
#include "tst_pagedreport.moc"
