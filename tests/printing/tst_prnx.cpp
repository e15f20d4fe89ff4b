#include "printing/DosPrint.h"
#include "printing/GraphicGrid.h"
#include "printing/PrintSettings.h"
#include "printing/Prnx.h"
#include "testsupport/PdfText.h"
#include "testsupport/RecordingRawChannel.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

class TestPrnx : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_log = RecordingRawChannel::Log();
        ResetPrintSettings();
        printSettings().title = QStringLiteral("S.M. Makbuzu");
        SetRawChannel(std::make_unique<RecordingRawChannel>(&m_log));
    }

    void cleanup() { SetRawChannel(nullptr); }

    void onlyCompletedLinesAreSent()
    {
        Prnx prnx;
        QVERIFY(prnx.OpenPrinter(Prnx::Raw, QStringLiteral("deneme")));
        QCOMPARE(prnx.YeniSayfa(), 1);
        prnx.Lprint(QStringLiteral("AB"), 5, false, 1);
        prnx.Lprint(QStringLiteral("ÇAĞ"), 4);
        QCOMPARE(m_log.writes.size(), 0);
        prnx.Lprint(QStringLiteral("X"), 0, true);
        prnx.Lprint(QStringLiteral("bekleyen"));
        prnx.ClosePrinter();
        QCOMPARE(m_log.writes,
            QList<QByteArray> { QByteArray("   AB\x80"
                                           "A\xa6 X\r\n") });
        QCOMPARE(prnx.SatirSayisi(), 1);
        QCOMPARE(m_log.title, QStringLiteral("S.M. Makbuzu"));
        QCOMPARE(m_log.closes, 1);
        QCOMPARE(prnx.printertip(), int(Prnx::Closed));
    }

    void condensedDocumentStartsWithSI()
    {
        Prnx prnx;
        QVERIFY(prnx.OpenPrinter(Prnx::Raw, QStringLiteral("rapor"), true));
        prnx.YeniSayfa();
        prnx.Lprint(QStringLiteral("A"), 0, true);
        prnx.Lprint(QStringLiteral("B"), 0, true);
        QCOMPARE(m_log.bytes(),
            QByteArray("\x0f"
                       "A\r\nB\r\n"));
    }

    void pageFeedPadsTheForm_data()
    {
        QTest::addColumn<bool>("pageFeed");
        QTest::addColumn<int>("blankLines");
        QTest::addColumn<int>("pageEnds");
        QTest::newRow("to the next form") << true << 56 << 1;
        QTest::newRow("no feed") << false << 0 << 0;
    }

    void pageFeedPadsTheForm()
    {
        QFETCH(bool, pageFeed);
        QFETCH(int, blankLines);
        QFETCH(int, pageEnds);
        printSettings().lines = 66;
        Prnx prnx;
        QVERIFY(prnx.OpenPrinter(Prnx::Raw));
        prnx.YeniSayfa();
        for (int i = 0; i < 10; ++i)
            prnx.Lprint(QStringLiteral("satır"), 0, true);
        m_log.writes.clear();
        prnx.SayfaBitti(pageFeed);
        QCOMPARE(m_log.writes.size(), blankLines);
        QCOMPARE(m_log.bytes(), QByteArray(" \r\n").repeated(blankLines));
        QCOMPARE(m_log.pageEnds, pageEnds);
        QCOMPARE(prnx.SatirSayisi(), 0);
    }

    void secondOpenKeepsTheDocument()
    {
        Prnx prnx;
        QVERIFY(prnx.OpenPrinter(Prnx::Raw));
        prnx.YeniSayfa();
        prnx.YeniSayfa();
        QCOMPARE(prnx.SayfaSayisi(), 2);
        QVERIFY(prnx.OpenPrinter(Prnx::Raw));
        QCOMPARE(prnx.SayfaSayisi(), 0);
        QCOMPARE(m_log.opens, 1);
    }

    void continuousPrintingKeepsOneJob()
    {
        Prnx prnx;
        prnx.OpenSurekliBasim();
        for (int receipt = 1; receipt <= 3; ++receipt) {
            QVERIFY(prnx.OpenPrinter(Prnx::Raw));
            prnx.YeniSayfa();
            prnx.Lprint(QString::number(receipt), 0, true);
            prnx.SayfaBitti(false);
            prnx.ClosePrinter();
        }
        QCOMPARE(m_log.closes, 0);
        QVERIFY(prnx.SurekliBasim());
        prnx.CloseSurekliBaski();
        QVERIFY(!prnx.SurekliBasim());
        QCOMPARE(m_log.opens, 1);
        QCOMPARE(m_log.closes, 1);
        QCOMPARE(m_log.bytes(), QByteArray("1\r\n2\r\n3\r\n"));
    }

    void rulesAndAttributes()
    {
        Prnx prnx;
        QVERIFY(prnx.OpenPrinter(Prnx::Raw));
        prnx.YeniSayfa();
        prnx.LinePrint(3, true);
        prnx.Lprint(QStringLiteral("Ş"), 2, true, 0, false, true, true);
        QCOMPARE(m_log.bytes(),
            QByteArray("\x1bG___\x1bH\x1b-\x01\x1b"
                       "4\x9e \x1b"
                       "5\x1b-\x00\r\n",
                21));
    }

    void failedOpenLeavesTheEngineClosed()
    {
        SetRawChannel(std::make_unique<RecordingRawChannel>(&m_log, false));
        Prnx prnx;
        QVERIFY(!prnx.OpenPrinter(Prnx::Raw));
        prnx.YeniSayfa();
        prnx.Lprint(QStringLiteral("A"), 0, true);
        QVERIFY(m_log.writes.isEmpty());
        QCOMPARE(m_log.pageStarts, 0);
        QCOMPARE(prnx.printertip(), int(Prnx::Closed));
        QVERIFY(!prnx.OpenPrinter(3));
    }

    void gridColumns_data()
    {
        QTest::addColumn<int>("en");
        QTest::addColumn<int>("textWidth");
        QTest::addColumn<QRect>("first");
        QTest::addColumn<QRect>("second");
        // 1320 pixels: ten to a column; lines of 40 pixels
        QTest::newRow("columns") << 12 << 0 << QRect(QPoint(0, 0), QPoint(119, 39))
                                 << QRect(QPoint(120, 0), QPoint(239, 39));
        QTest::newRow("text width") << 0 << 37 << QRect(QPoint(0, 0), QPoint(36, 39))
                                    << QRect(QPoint(37, 0), QPoint(156, 39));
    }

    void gridColumns()
    {
        QFETCH(int, en);
        QFETCH(int, textWidth);
        QFETCH(QRect, first);
        QFETCH(QRect, second);
        GraphicGrid grid(1320, 40);
        QCOMPARE(grid.placeField(en, textWidth), first);
        QCOMPARE(grid.placeField(12, 999), second);
        grid.lineFeed();
        QCOMPARE(grid.placeField(1, 0), QRect(QPoint(0, 40), QPoint(9, 79)));
        QCOMPARE(grid.placeRule(5), QLine(10, 60, 60, 60));
        GraphicGrid fractional(1000, 15);
        QCOMPARE(fractional.placeField(66, 0).right(), 499); // 66 × 1000/132 = 500
        QCOMPARE(fractional.placeRule(1), QLine(500, 8, 508, 8));
    }

    void graphicPageAsPdf()
    {
        QTemporaryDir dir;
        PrintSettings &settings = printSettings();
        settings.target = PrintSettings::GraphicTarget::PdfFile;
        settings.pdfFile = dir.filePath(QStringLiteral("sayfa.pdf"));
        Prnx prnx;
        QVERIFY(prnx.OpenPrinter(Prnx::Graphic, QStringLiteral("Deneme")));
        QVERIFY(settings.lines > 40); // the lines that fit on the paper
        prnx.YeniSayfa();
        prnx.Lprint(QStringLiteral("GENEL BORÇ ALACAK LİSTESİ"), 66, false, 0, true);
        prnx.Lprint(QStringLiteral("Sayfa: 1"), 66, true, 1);
        prnx.LinePrint(132, false, true);
        prnx.Lprint(QStringLiteral("Şükrü Işık"), 40, false, 0, false, true, true);
        prnx.Lprint(QStringLiteral("1,234.50"), 20, true, 1);
        prnx.SayfaBitti(true);
        prnx.YeniSayfa();
        prnx.Lprint(QStringLiteral("İkinci sayfa"), 0, true);
        prnx.SayfaBitti(true);
        prnx.ClosePrinter();

        const QString pages = PdfText(settings.pdfFile);
        QVERIFY2(pages.contains(QStringLiteral("GENEL BORÇ ALACAK LİSTESİ")), qPrintable(pages));
        QVERIFY(pages.contains(QStringLiteral("Sayfa: 1")));
        QVERIFY(pages.contains(QStringLiteral("Şükrü Işık")));
        QVERIFY(pages.contains(QStringLiteral("1,234.50")));
        QCOMPARE(pages.count(u'\f'), 2);
        QVERIFY(pages.section(u'\f', 1).contains(QStringLiteral("İkinci sayfa")));
    }

private:
    RecordingRawChannel::Log m_log;
};

QTEST_MAIN(TestPrnx)
#include "tst_prnx.moc"
