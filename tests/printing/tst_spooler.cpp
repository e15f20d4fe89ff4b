#include "printing/CupsPrinters.h"
#include "printing/DosPrint.h"
#include "printing/PrintSettings.h"
#include "printing/PrinterSetupDialog.h"
#include "printing/Prnx.h"
#include "testsupport/MessageLog.h"
#include "testsupport/PrivateSpooler.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

// The raw channel and the printer settings against a real scheduler whose one queue is a TCP
// listener standing in for a network dot-matrix printer.
class TestSpooler : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_spooler = std::make_unique<PrivateSpooler>();
        QVERIFY2(m_spooler->isReady(), qPrintable(m_spooler->error()));
        QVERIFY(m_spooler->addQueue(QStringLiteral("nokta")));
    }

    void cleanupTestCase() { m_spooler.reset(); }

    void init()
    {
        ResetPrintSettings();
        SetCurrentPrinterName(QString());
    }

    void withoutAPrinterOnlyPdfIsOffered()
    {
        QVERIFY(m_spooler->removeQueue(QStringLiteral("nokta")));
        QVERIFY(InstalledPrinters().isEmpty());
        presetReceipt();
        PrinterSetupDialog dialog;
        QCOMPARE(control<QLabel>(dialog, "Label1")->text(), QStringLiteral("Seçili Yazıcı Yok... Yazıcı Yükleyiniz."));
        QVERIFY(control<QLabel>(dialog, "Label2")->isVisibleTo(&dialog));
        QCOMPARE(control<QLabel>(dialog, "Label2")->text(),
            QStringLiteral("Yazıcı olmadan yalnız PDF dosyasına yazdırılabilir."));
        QVERIFY(!control<QRadioButton>(dialog, "Option1_0")->isEnabled());
        QVERIFY(!control<QRadioButton>(dialog, "Option1_1")->isEnabled());
        QVERIFY(control<QRadioButton>(dialog, "Option1_2")->isChecked());
        QVERIFY(!control<QPushButton>(dialog, "Command1")->isEnabled());
        QVERIFY(control<QPushButton>(dialog, "Command6")->isEnabled());
        QVERIFY(control<QPushButton>(dialog, "Command4")->isEnabled());
        control<QPushButton>(dialog, "Command4")->click();
        QVERIFY(printSettings().confirmed);
        QVERIFY(!printSettings().dotMatrix);
        QCOMPARE(printSettings().target, PrintSettings::GraphicTarget::PdfFile);
        QVERIFY(!OpenDosPrinter());
        QVERIFY(m_spooler->addQueue(QStringLiteral("nokta")));
        QVERIFY(m_spooler->addQueue(QStringLiteral("arsiv"), false));
        QCOMPARE(
            InstalledPrinters(), QStringList({ QStringLiteral("nokta"), QStringLiteral("arsiv") })); // default first
        QVERIFY(m_spooler->removeQueue(QStringLiteral("arsiv")));
        PrinterSetupDialog withPrinter;
        QVERIFY(!control<QLabel>(withPrinter, "Label2")->isVisibleTo(&withPrinter));
    }

    void pdfNameFollowsTheTitle_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("suggested");
        QTest::newRow("another printout") << u"EMANET ALINDI MAKBUZU"_s << u"EMANET ALINDI MAKBUZU.pdf"_s;
        QTest::newRow("the same printout again") << u"S.M. Makbuzu"_s << u"S.M. Makbuzu (2).pdf"_s;
        QTest::newRow("a slash in the title") << u"Borç/Alacak"_s << u"Borç-Alacak.pdf"_s;
        QTest::newRow("no title") << u""_s << u"Belge.pdf"_s;
    }

    // The file name comes from the printout's title, in the folder of the previous file, and never
    // names a file that is already there.
    void pdfNameFollowsTheTitle()
    {
        QFETCH(QString, title);
        QFETCH(QString, suggested);
        QTemporaryDir dir;
        QFile previous(dir.filePath(QStringLiteral("S.M. Makbuzu.pdf")));
        QVERIFY(previous.open(QIODevice::WriteOnly));
        previous.close();
        presetReceipt();
        printSettings().pdfFile = previous.fileName();
        printSettings().title = title;
        PrinterSetupDialog dialog;
        auto *file = control<QLineEdit>(dialog, "Text2");
        QCOMPARE(file->text(), dir.filePath(suggested));
        control<QRadioButton>(dialog, "Option1_2")->click();
        control<QLineEdit>(dialog, "Text1")->clear();
        QTest::keyClicks(control<QLineEdit>(dialog, "Text1"), QStringLiteral("Kasa"));
        QCOMPARE(file->text(), dir.filePath(QStringLiteral("Kasa.pdf"))); // a changed title carries the name along
        QTest::keyClicks(file, QStringLiteral("x"));
        QTest::keyClicks(control<QLineEdit>(dialog, "Text1"), QStringLiteral(" Defteri"));
        QCOMPARE(file->text(), dir.filePath(QStringLiteral("Kasa.pdfx"))); // until a name is typed
    }

    void unknownPrinterOpensNothing()
    {
        SetCurrentPrinterName(QStringLiteral("yok"));
        QCOMPARE(CurrentPrinterName(), QStringLiteral("nokta")); // an unknown choice falls back to the default
        const int jobs = m_spooler->jobTitles().size();
        QVERIFY(m_spooler->addQueue(QStringLiteral("gecici"), false));
        SetCurrentPrinterName(QStringLiteral("gecici"));
        QCOMPARE(CurrentPrinterName(), QStringLiteral("gecici"));
        QVERIFY(m_spooler->removeQueue(QStringLiteral("gecici")));
        QCOMPARE(CurrentPrinterName(), QStringLiteral("nokta"));
        QCOMPARE(m_spooler->jobTitles().size(), jobs);
    }

    void printerReceivesExactBytes()
    {
        printSettings().title = QStringLiteral("S.M. Makbuzu");
        const QByteArray before = m_spooler->received();
        Prnx prnx;
        QVERIFY(prnx.OpenPrinter(Prnx::Raw, QStringLiteral("Makbuz"), true));
        prnx.YeniSayfa();
        prnx.Lprint(QStringLiteral("ŞİŞLİ ÇAĞ"), 0, true);
        prnx.Lprint(QStringLiteral("AB"), 5, true, 1, true);
        prnx.SayfaBitti(false);
        prnx.ClosePrinter();
        const QByteArray expected("\x0f\x9e\x98\x9e\x4c\x98\x20\x80\x41\xa6\r\n\x1bG   AB\x1bH\r\n");
        QTRY_COMPARE_WITH_TIMEOUT(m_spooler->received().mid(before.size()), expected, 20000);
        QVERIFY(m_spooler->jobTitles().contains(QStringLiteral("S.M. Makbuzu")));
    }

    void continuousPrintingIsOneJob()
    {
        printSettings().title = QStringLiteral("Sürekli");
        const int connections = m_spooler->connections();
        const QByteArray before = m_spooler->received();
        Prnx prnx;
        prnx.OpenSurekliBasim();
        for (int receipt = 1; receipt <= 3; ++receipt) {
            QVERIFY(prnx.OpenPrinter(Prnx::Raw));
            prnx.YeniSayfa();
            prnx.Lprint(QStringLiteral("Makbuz %1").arg(receipt), 0, true);
            prnx.ClosePrinter();
        }
        prnx.CloseSurekliBaski();
        QTRY_COMPARE_WITH_TIMEOUT(
            m_spooler->received().mid(before.size()), QByteArray("Makbuz 1\r\nMakbuz 2\r\nMakbuz 3\r\n"), 20000);
        QCOMPARE(m_spooler->connections(), connections + 1);
        QCOMPARE(m_spooler->jobTitles().count(QStringLiteral("Sürekli")), 1);
    }

    void printoutNotMadeSaysWhy_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("pdfFile");
        QTest::addColumn<QString>("message");
        QTest::newRow("PDF in a folder that is not there")
            << int(Prnx::Graphic) << u"/yok/klasör/Kasa.pdf"_s
            << u"Yazdırılamadı\nDosya: /yok/klasör/Kasa.pdf\nNeden: klasör bulunamadı"_s;
        QTest::newRow("raw job refused") << int(
            Prnx::Raw) << u""_s << u"Yazıcı Açılamadı\nYazıcı: nokta\nNeden: yazıcı kuyruğu işi kabul etmedi"_s;
    }

    // The PDF file cannot be written, or the spooler takes no jobs: nothing claims to have printed.
    void printoutNotMadeSaysWhy()
    {
        QFETCH(int, kind);
        QFETCH(QString, pdfFile);
        QFETCH(QString, message);
        MessageLog messages;
        printSettings().target = PrintSettings::GraphicTarget::PdfFile;
        printSettings().pdfFile = pdfFile;
        QVERIFY(m_spooler->acceptJobs(QStringLiteral("nokta"), false));
        Prnx prnx;
        if (prnx.OpenPrinter(kind, QStringLiteral("Kasa"))) {
            prnx.YeniSayfa();
            prnx.Lprint(QStringLiteral("Kasa Defteri"), 0, true);
            prnx.SayfaBitti(true);
            prnx.ClosePrinter();
        }
        QVERIFY(m_spooler->acceptJobs(QStringLiteral("nokta"), true));
        QCOMPARE(messages.texts(), QStringList { message });
        QVERIFY(!QFile::exists(pdfFile));
    }

    void receiptPresetIsShown()
    {
        presetReceipt();
        PrinterSetupDialog dialog;
        QCOMPARE(dialog.windowTitle(), QStringLiteral(" Yazıcı Ayarları"));
        QCOMPARE(control<QLabel>(dialog, "Label1")->text(), QStringLiteral("nokta"));
        QCOMPARE(control<QComboBox>(dialog, "Combo1")->currentText(), QStringLiteral("33"));
        QCOMPARE(control<QComboBox>(dialog, "Combo2")->currentText(), QStringLiteral("1"));
        QVERIFY(control<QRadioButton>(dialog, "Option1_0")->isChecked());
        QVERIFY(control<QRadioButton>(dialog, "Option2_0")->isChecked());
        for (const char *check : { "Check1_0", "Check1_1", "Check1_2", "Check1_3" })
            QVERIFY(!control<QCheckBox>(dialog, check)->isChecked());
        QCOMPARE(control<QLineEdit>(dialog, "Text1")->text(), QStringLiteral("S.M. Makbuzu"));
        QVERIFY(control<QPushButton>(dialog, "Command4")->isEnabled());
        QVERIFY(!control<QPushButton>(dialog, "Command6")->isEnabled()); // no preview of dot-matrix output
    }

    void cancelKeepsThePreset()
    {
        presetReceipt();
        PrinterSetupDialog dialog;
        control<QComboBox>(dialog, "Combo1")->setCurrentText(QStringLiteral("70"));
        control<QLineEdit>(dialog, "Text1")->setText(QStringLiteral("Başka"));
        control<QPushButton>(dialog, "Command5")->click();
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
        const PrintSettings &record = printSettings();
        QVERIFY(!record.confirmed);
        QCOMPARE(record.lines, 33);
        QCOMPARE(record.title, QStringLiteral("S.M. Makbuzu"));
        QVERIFY(record.dotMatrix);
    }

    void graphicGreysTheLines()
    {
        presetReceipt();
        PrinterSetupDialog dialog;
        QVERIFY(control<QComboBox>(dialog, "Combo1")->isEnabled());
        QVERIFY(!control<QRadioButton>(dialog, "Option2_1")->isEnabled());
        control<QRadioButton>(dialog, "Option1_1")->click();
        QVERIFY(!control<QComboBox>(dialog, "Combo1")->isEnabled());
        QVERIFY(control<QRadioButton>(dialog, "Option2_1")->isEnabled());
        QVERIFY(control<QPushButton>(dialog, "Command6")->isEnabled());
        control<QPushButton>(dialog, "Command4")->click();
        QCOMPARE(printSettings().lines, 33); // the greyed value still goes into the record
        QVERIFY(!printSettings().dotMatrix);
    }

    void keysOfTheDialog_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("presetDotMatrix");
        QTest::addColumn<bool>("dotMatrixAfter");
        QTest::addColumn<bool>("open");
        QTest::newRow("Up: dot matrix") << int(Qt::Key_Up) << false << true << true;
        QTest::newRow("Down: graphic") << int(Qt::Key_Down) << true << false << true;
        QTest::newRow("Esc: cancel") << int(Qt::Key_Escape) << true << true << false;
        QTest::newRow("Enter: confirm") << int(Qt::Key_Return) << true << true << false;
    }

    void keysOfTheDialog()
    {
        QFETCH(int, key);
        QFETCH(bool, presetDotMatrix);
        QFETCH(bool, dotMatrixAfter);
        QFETCH(bool, open);
        presetReceipt();
        printSettings().dotMatrix = presetDotMatrix;
        PrinterSetupDialog dialog;
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        auto *copies = control<QComboBox>(dialog, "Combo2");
        copies->setFocus();
        QTest::keyClick(copies, Qt::Key(key));
        QCOMPARE(control<QRadioButton>(dialog, "Option1_0")->isChecked(), dotMatrixAfter);
        QCOMPARE(dialog.isVisible(), open);
        QCOMPARE(copies->currentText(), QStringLiteral("1")); // the keys do not reach the list
        QCOMPARE(printSettings().confirmed, key == Qt::Key_Return);
    }

    void okWritesTheRecord()
    {
        presetReceipt();
        PrinterSetupDialog dialog;
        control<QRadioButton>(dialog, "Option1_2")->click();
        control<QLineEdit>(dialog, "Text2")->setText(QStringLiteral("/tmp/liste.pdf"));
        control<QComboBox>(dialog, "Combo2")->setCurrentText(QStringLiteral("3"));
        control<QRadioButton>(dialog, "Option2_1")->click();
        control<QCheckBox>(dialog, "Check1_2")->click();
        control<QLineEdit>(dialog, "Text1")->setText(QStringLiteral("Stopaj Listesi"));
        control<QPushButton>(dialog, "Command4")->click();
        const PrintSettings &record = printSettings();
        QVERIFY(record.confirmed);
        QVERIFY(!record.dotMatrix);
        QCOMPARE(record.target, PrintSettings::GraphicTarget::PdfFile);
        QCOMPARE(record.pdfFile, QStringLiteral("/tmp/liste.pdf"));
        QCOMPARE(record.copies, 3);
        QCOMPARE(record.orientation, 2);
        QVERIFY(record.pageNoHeading);
        QVERIFY(!record.titleHeading);
        QCOMPARE(record.title, QStringLiteral("Stopaj Listesi"));
    }

private:
    template <typename T> T *control(QDialog &dialog, const char *name)
    {
        return dialog.findChild<T *>(QString::fromLatin1(name));
    }
    void presetReceipt();

    std::unique_ptr<PrivateSpooler> m_spooler;
};

void TestSpooler::presetReceipt()
{
    PrintSettings &record = printSettings();
    record.title = QStringLiteral("S.M. Makbuzu");
    record.titleHeading = record.dateHeading = record.pageNoHeading = record.companyHeading = false;
    record.orientation = 1;
    record.lines = 33;
    record.copies = 1;
    record.dotMatrix = true;
}

QTEST_MAIN(TestSpooler)
#include "tst_spooler.moc"
