#include "books/AccessLayer.h"
#include "books/Clock.h"
#include "books/DataFiles.h"
#include "books/Parameters.h"
#include "controls/DcList.h"
#include "controls/XText.h"
#include "money/AmountConventions.h"
#include "printing/PrintSettings.h"
#include "printing/PrinterSetupDialog.h"
#include "printing/RawText.h"
#include "receipts/DepositScreen.h"
#include "receipts/EsmmImportScreen.h"
#include "receipts/ReceiptScreen.h"
#include "testsupport/Books.h"
#include "testsupport/EsmmSamples.h"
#include "testsupport/Golden.h"
#include "testsupport/KeyBurst.h"
#include "testsupport/PdfText.h"
#include "testsupport/PrivateSpooler.h"
#include "testsupport/QueryTexts.h"
#include "testsupport/ScreenFixture.h"
#include "testsupport/ScreenSuite.h"
#include "testsupport/Typing.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

void addLayoutRow(int no, float uzun, float sol, float ust, const QString &txt = QString())
{
    Recordset &duzen = *dataFiles().duzen;
    RsAddNew(duzen);
    FieldWrite(duzen, QStringLiteral("no"), no);
    FieldWrite(duzen, QStringLiteral("uzun"), uzun);
    FieldWrite(duzen, QStringLiteral("sol"), sol);
    FieldWrite(duzen, QStringLiteral("ust"), ust);
    FieldWrite(duzen, QStringLiteral("txt"), txt);
    RsUpdate(duzen);
}

} // namespace

class TestReceiptScreen : public ScreenSuite<ReceiptScreen>
{
    Q_OBJECT
public:
    TestReceiptScreen()
        : ScreenSuite("mnumkb", "Form1", QStringLiteral("makbuz"))
    {
    }

protected:
    void prepare() override
    {
        GenelSingSet(QStringLiteral("stopaj"), 20);
        GenelSingSet(QStringLiteral("fon"), 10);
        GenelSingSet(QStringLiteral("kdv"), 18);
        GenelIntegSet(QStringLiteral("tlonda"), 2);
        GenelTxtSet(QStringLiteral("lastack"), QStringLiteral("Önceki açıklama"));
        LoadParameters();
        Recordset &cards = *dataFiles().carkart;
        RsAddNew(cards);
        FieldWrite(cards, QStringLiteral("kod"), QStringLiteral("K1"));
        FieldWrite(cards, QStringLiteral("unv"), QStringLiteral("Müşteri A.Ş."));
        FieldWrite(cards, QStringLiteral("adr1"), QStringLiteral("Kızılay"));
        FieldWrite(cards, QStringLiteral("adr2"), QStringLiteral("Ankara"));
        FieldWrite(cards, QStringLiteral("vd"), QStringLiteral("Çankaya"));
        FieldWrite(cards, QStringLiteral("vn"), QStringLiteral("1234567890"));
        FieldWrite(cards, QStringLiteral("ucret"), QVariant::fromValue(Currency::fromUnits(1000)));
        QVERIFY(RsUpdate(cards));
    }

private slots:
    void fullReceiptIsPostedAndPrinted()
    {
        const struct
        {
            int no;
            float uzun, sol, ust;
            const char *txt;
        } layout[] = {
            { 0, 30, 5, 2, "" },
            { 1, 30, 5, 3, "" },
            { 2, 30, 5, 4, "" },
            { 3, 15, 5, 5, "" },
            { 4, 12, 25, 5, "" },
            { 5, 30, 40, 6, "" },
            { 6, 40, 5, 8, "" },
            { 7, 8, 60, 8, "" },
            { 8, 12, 60, 9, "" },
            { 9, 12, 60, 10, "" },
            { 10, 12, 60, 11, "" },
            { 11, 12, 60, 12, "" },
            { 12, 5, 60, 14, "" },
            { 13, 60, 5, 16, "Yalnız " },
            { 14, 3, 50, 9, "" },
            { 15, 3, 50, 10, "" },
            { 16, 3, 50, 12, "" },
            { 17, 8, 70, 1, "" },
            { 18, 10, 70, 2, "" },
            { 19, 10, 75, 20, "Teşekkürler" },
            { 0, 10, 1, 0, "" },
            { 6, 10, 1, 34, "" },
        };
        for (const auto &row : layout)
            addLayoutRow(row.no, row.uzun, row.sol, row.ust, QString::fromUtf8(row.txt));

        QCOMPARE(field(0)->Text(), QStringLiteral("1"));
        QCOMPARE(field(8)->Text(), QStringLiteral("Önceki açıklama"));
        typeInto(0, QStringLiteral("500"));
        typeInto(2, QStringLiteral("K1"));
        QTest::keyClick(field(2)->textBox(), Qt::Key_Return); // leaving the code fills the account in
        QCOMPARE(field(3)->Text(), QStringLiteral("Müşteri A.Ş."));
        QCOMPARE(field(9)->Text(), QStringLiteral("1,000.00"));
        m_screen->findChild<QCheckBox *>(QStringLiteral("Check1_0"))->click();
        m_screen->findChild<QCheckBox *>(QStringLiteral("Check1_1"))->click();
        const auto *total = m_screen->findChild<QLabel *>(QStringLiteral("toplam"));
        QCOMPARE(total->text(), QStringLiteral("960.00"));
        QCOMPARE(total->accessibleName(), QStringLiteral("960.00")); // what a screen reader reads
        QCOMPARE(total->accessibleDescription(), QStringLiteral("TOPLAM"));
        typeInto(8, QStringLiteral("Danışmanlık"));

        AnswerPrinterSetup("Command4", this);
        const QByteArray printed = m_spooler->receive([this] { QTest::keyClick(field(8)->textBox(), Qt::Key_F5); });
        COMPARE_GOLDEN(RawPrintout(printed), "receipts/pages/receipt.txt");
        QVERIFY(m_spooler->jobTitles().contains(QStringLiteral("S.M. Makbuzu")));

        QCOMPARE(StoredRows(u"kod, tarih, evrak, ack, islem, ba, tutar FROM carhar"_s),
            QStringList { QStringLiteral("K1|46342|500|Danışmanlık|2|0|9600000") });
        QCOMPARE(StoredRows(u"sira, tarih, islem, evrak, cari, ack, brut, stopaj, fon, kdv FROM defter"_s),
            QStringList { QStringLiteral("0|46342|0|500|K1|Müşteri A.Ş.|10000000|2000000|200000|1800000") });
        QCOMPARE(GenelCurrenGet(QStringLiteral("serino")), Currency::fromUnits(500));
        QCOMPARE(GenelTxtGet(QStringLiteral("lastack")), QStringLiteral("Danışmanlık"));
        QCOMPARE(field(0)->Text(), QStringLiteral("501"));
        QCOMPARE(field(8)->Text(), QStringLiteral("Danışmanlık"));
        QCOMPARE(field(2)->Text(), QString());
        QTRY_COMPARE(m_kit->window().focusWidget(), field(2)->textBox());
        QCOMPARE(m_screen->total(), Currency());
        QVERIFY(m_kit->messages().entries().isEmpty());
    }

    void zeroTotalSavesNothing()
    {
        typeInto(2, QStringLiteral("YOK"));
        QTest::keyClick(field(2)->textBox(), Qt::Key_F5);
        QCOMPARE(
            QueryTexts(QStringLiteral("SELECT count(*) AS n FROM carhar"), QStringLiteral("n")), QStringList { "0" });
        QCOMPARE(GenelCurrenGet(QStringLiteral("serino")), Currency());
        QVERIFY(m_kit->messages().entries().isEmpty());
    }

    void graphicOutputIsRefused()
    {
        QTimer::singleShot(0, this, [] {
            auto *dialog = qobject_cast<PrinterSetupDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            dialog->findChild<QRadioButton *>(QStringLiteral("Option1_1"))->click();
            dialog->findChild<QPushButton *>(QStringLiteral("Command4"))->click();
        });
        field(1)->setFocus();
        QTest::keyClick(field(1)->textBox(), Qt::Key_F8);
        QCOMPARE(m_kit->messages().texts(), QStringList { QStringLiteral("Dot-Matrix Yazıcıdan Alınabilir..") });
        QCOMPARE(printSettings().lines, 33);
    }

    void netFeeFillsTheGrossBack_data()
    {
        QTest::addColumn<bool>("withhold");
        QTest::addColumn<bool>("levy");
        QTest::newRow("nothing withheld") << false << false;
        QTest::newRow("withholding") << true << false;
        QTest::newRow("withholding and levy") << true << true;
    }

    // Typing the net fee works the gross fee out backwards with both rates, whatever the boxes say;
    // the net stays as typed.
    void netFeeFillsTheGrossBack()
    {
        QFETCH(bool, withhold);
        QFETCH(bool, levy);
        m_screen->findChild<QCheckBox *>(QStringLiteral("Check1_0"))->setChecked(withhold);
        m_screen->findChild<QCheckBox *>(QStringLiteral("Check1_1"))->setChecked(levy);
        typeInto(12, QStringLiteral("700"));
        QCOMPARE(field(9)->Text(), QStringLiteral("1,000.00"));
        QCOMPARE(field(10)->amount(), Currency::fromUnits(withhold ? 200 : 0));
        QCOMPARE(field(11)->amount(), Currency::fromUnits(levy ? 20 : 0));
        QCOMPARE(field(12)->amount(), Currency::fromUnits(700));
        QCOMPARE(field(13)->Text(), QStringLiteral("180.00"));
        QCOMPARE(totalText(), QStringLiteral("880.00"));
    }

    void overwrittenKdvChangesTheTotal()
    {
        chooseAccount();
        QCOMPARE(totalText(), QStringLiteral("1,180.00"));
        typeInto(13, QStringLiteral("100"));
        QCOMPARE(totalText(), QStringLiteral("1,100.00"));
        AnswerPrinterSetup("Command5", this);
        QTest::keyClick(field(13)->textBox(), Qt::Key_F5);
        QCOMPARE(QueryTexts(QStringLiteral("SELECT tutar || '' AS r FROM carhar"), QStringLiteral("r")),
            QStringList { "11000000" });
        QCOMPARE(QueryTexts(QStringLiteral("SELECT kdv || '' AS r FROM defter"), QStringLiteral("r")),
            QStringList { "1000000" });
    }

    void vatWithheldByThePayer_data()
    {
        QTest::addColumn<float>("kdvRate");
        QTest::addColumn<QString>("tenths"); // typed into "Tevkifat"
        QTest::addColumn<QString>("overwritten"); // typed over the computed withheld VAT
        QTest::addColumn<QString>("withheld"); // shown and printed
        QTest::addColumn<QString>("total");
        QTest::addColumn<QString>("words");
        QTest::addColumn<QString>("kept"); // the receipt's own record: share in percent | withheld VAT
        // A gross of 1,000.00 with 20 % withheld: net 800.00.
        QTest::newRow("nothing withheld")
            << 18.f << u""_s << u""_s << u""_s << u"980.00"_s << u"dokuzyüzseksen TL"_s << u""_s;
        QTest::newRow("5/10") << 18.f << u"5"_s << u""_s << u"90.00"_s << u"890.00"_s << u"sekizyüzdoksan TL"_s
                              << u"50|900000"_s;
        QTest::newRow("9/10") << 18.f << u"9"_s << u""_s << u"162.00"_s << u"818.00"_s << u"sekizyüzonsekiz TL"_s
                              << u"90|1620000"_s;
        QTest::newRow("9/10 overwritten")
            << 18.f << u"9"_s << u"150"_s << u"150.00"_s << u"830.00"_s << u"sekizyüzotuz TL"_s << u"90|1500000"_s;
        QTest::newRow("today's rates: the payer pays the gross")
            << 20.f << u""_s << u""_s << u""_s << u"1,000.00"_s << u"bin TL"_s << u""_s;
    }

    // The payer keeps tenths of the VAT and pays them to the tax office: the receipt shows them and
    // the total less them, the account is owed that total, the ledger keeps the whole VAT and the
    // withheld part is kept beside it.
    void vatWithheldByThePayer()
    {
        QFETCH(float, kdvRate);
        QFETCH(QString, tenths);
        QFETCH(QString, overwritten);
        QFETCH(QString, withheld);
        QFETCH(QString, total);
        QFETCH(QString, words);
        QFETCH(QString, kept);
        addLayoutRow(11, 12, 1, 1); // the VAT
        addLayoutRow(20, 12, 1, 2); // the withheld VAT
        addLayoutRow(21, 5, 20, 2); // its share
        addLayoutRow(12, 12, 1, 3); // the total
        addLayoutRow(13, 40, 1, 4); // the total in words
        parameters().kdv = kdvRate;
        m_screen->findChild<QCheckBox *>(QStringLiteral("Check1_0"))->setChecked(true);
        chooseAccount();
        if (!tenths.isEmpty())
            typeInto(14, tenths);
        if (!overwritten.isEmpty())
            typeInto(15, overwritten);
        QCOMPARE(field(15)->Text(), withheld);
        QCOMPARE(totalText(), total);

        AnswerPrinterSetup("Command4", this);
        const QByteArray printed = m_spooler->receive([this] { QTest::keyClick(field(15)->textBox(), Qt::Key_F5); });
        COMPARE_GOLDEN(RawPrintout(printed), RowGoldenFile(u"receipts/pages/vat-withheld"_s));

        const qint64 owed = (Currency::fromString(QString(total).remove(u',')).raw());
        QCOMPARE(QueryTexts(QStringLiteral("SELECT tutar || '' AS r FROM carhar"), QStringLiteral("r")),
            QStringList { QString::number(owed) });
        QCOMPARE(StoredRows(u"brut, stopaj, kdv FROM defter"_s),
            QStringList { QStringLiteral("10000000|2000000|") + QString::number(qint64(kdvRate) * 100000) });
        QCOMPARE(StoredRows(QStringLiteral("tevkoran, tevkifat FROM makbuz JOIN defter ON defter.oto = makbuz.defter "
                                           "JOIN carhar ON carhar.oto = makbuz.carhar")),
            kept.isEmpty() ? QStringList() : QStringList { kept });
        QCOMPARE(field(14)->Text(), QString()); // the next receipt starts without withholding
        QVERIFY(m_kit->messages().entries().isEmpty());
    }

    // 780 net with withholding and levy is a gross of 1,114.2857…: the ledger keeps the 1,114.29 that
    // the screen shows and the receipt prints, so that receipts add up in the books as on paper.
    void netFirstReceiptStoresTheShownGross()
    {
        chooseAccount();
        m_screen->findChild<QCheckBox *>(QStringLiteral("Check1_0"))->setChecked(true);
        m_screen->findChild<QCheckBox *>(QStringLiteral("Check1_1"))->setChecked(true);
        typeInto(12, QStringLiteral("780"));
        QCOMPARE(field(9)->Text(), QStringLiteral("1,114.29"));
        AnswerPrinterSetup("Command5", this);
        QTest::keyClick(field(12)->textBox(), Qt::Key_F5);
        QCOMPARE(
            StoredRows(u"brut, stopaj, fon, kdv FROM defter"_s), QStringList { "11142900|2228600|222900|2005700" });
    }

    // The gross field takes no more than a Currency holds; a gross whose VAT makes the total too large
    // shows "Taşma" and is refused, nothing is posted.
    void amountBeyondTheMoneyTypeIsRefused()
    {
        typeInto(2, QStringLiteral("K1"));
        typeInto(9, QStringLiteral("99999999999999999"));
        QCOMPARE(field(9)->amount(), Currency::fromUnits(99999999999999)); // the last digits did not fit
        field(8)->setFocus(); // coming back into the field, typing replaces its value
        typeInto(9, QStringLiteral("900000000000000"));
        QCOMPARE(field(9)->amount(), Currency::fromUnits(900000000000000));
        QCOMPARE(totalText(), QStringLiteral("Taşma"));
        QTest::keyClick(field(9)->textBox(), Qt::Key_F5);
        QCOMPARE(m_kit->messages().texts(), QStringList { QStringLiteral("Tutar çok büyük; makbuz kaydedilmedi.") });
        QCOMPARE(QueryTexts(QStringLiteral("SELECT (SELECT count(*) FROM carhar) + (SELECT count(*) FROM defter) AS n"),
                     QStringLiteral("n")),
            QStringList { "0" });
        QCOMPARE(GenelCurrenGet(QStringLiteral("serino")), Currency());
    }

    void screenKeysWorkFromACheckBox_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("F5 saves") << int(Qt::Key_F5);
        QTest::newRow("F8 prints") << int(Qt::Key_F8);
        QTest::newRow("Esc closes") << int(Qt::Key_Escape);
    }

    void screenKeysWorkFromACheckBox()
    {
        QFETCH(int, key);
        chooseAccount();
        auto *box = m_screen->findChild<QCheckBox *>(QStringLiteral("Check1_0"));
        box->setFocus();
        QVERIFY(box->hasFocus());
        bool asked = false;
        if (key != Qt::Key_Escape)
            AnswerPrinterSetup("Command5", this, [&asked](QWidget *) { asked = true; });
        QTest::keyClick(box, Qt::Key(key));
        QCOMPARE(asked, key != Qt::Key_Escape); // saving prints too
        QCOMPARE(QueryTexts(QStringLiteral("SELECT count(*) AS n FROM carhar"), QStringLiteral("n")),
            QStringList { key == Qt::Key_F5 ? "1" : "0" });
        QTRY_COMPARE(m_screen.isNull(), key == Qt::Key_Escape);
    }

    void refusedPostingIsReported_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("message");
        QTest::newRow("account transactions") << u"carhar"_s << u"Kayıt Cari Hareketlere Kaydedilemedi.."_s;
        QTest::newRow("ledger") << u"defter"_s << u"Kayıt Defter Hareketlere Kaydedilemedi.."_s;
    }

    void refusedPostingIsReported()
    {
        QFETCH(QString, table);
        QFETCH(QString, message);
        QVERIFY(RefuseWrites(table, QStringLiteral("INSERT")));
        chooseAccount();
        AnswerPrinterSetup("Command5", this);
        QTest::keyClick(field(2)->textBox(), Qt::Key_F5);
        QCOMPARE(m_kit->messages().texts(), QStringList { message });
        QCOMPARE(m_kit->messages().entries().first().kind, Message::Kind::Exclamation);
    }

    void depositIsPostedAsACredit()
    {
        QVERIFY(openDeposit());
        QCOMPARE(depositField(0)->Text(), QStringLiteral("1"));
        fillDeposit();
        QCOMPARE(depositField(3)->Text(), QStringLiteral("Müşteri A.Ş."));
        QTest::keyClick(depositField(9)->textBox(), Qt::Key_F5);
        QCOMPARE(StoredRows(u"kod, tarih, evrak, ack, islem, ba, tutar FROM carhar"_s),
            QStringList { QStringLiteral("K1|46342|120|Dava masrafı|3|1|25000000") });
        QCOMPARE(
            QueryTexts(QStringLiteral("SELECT count(*) AS n FROM defter"), QStringLiteral("n")), QStringList { "0" });
        QCOMPARE(GenelCurrenGet(QStringLiteral("emanet")), Currency::fromUnits(120));
        QCOMPARE(depositField(0)->Text(), QStringLiteral("121"));
        QCOMPARE(depositField(9)->Text(), QString());
        QVERIFY(m_kit->messages().entries().isEmpty());
    }

    void incompleteDepositIsRefused_data()
    {
        QTest::addColumn<int>("emptied");
        QTest::addColumn<QString>("message");
        QTest::newRow("no date") << 1 << u"Hatalı Tarih Girildi.\nMakbuz Kaydedilmedi."_s;
        QTest::newRow("no account") << 2 << u"Cari Kod Girilmemiş.\nMakbuz Kaydedilmedi."_s;
        QTest::newRow("no amount") << 9 << u"Tutar Yazılmamış.."_s;
    }

    void incompleteDepositIsRefused()
    {
        QFETCH(int, emptied);
        QFETCH(QString, message);
        QVERIFY(openDeposit());
        fillDeposit();
        depositField(emptied)->setText(QString());
        QTest::keyClick(depositField(8)->textBox(), Qt::Key_F5);
        QCOMPARE(m_kit->messages().texts(), QStringList { message });
        QCOMPARE(
            QueryTexts(QStringLiteral("SELECT count(*) AS n FROM carhar"), QStringLiteral("n")), QStringList { "0" });
        QCOMPARE(GenelCurrenGet(QStringLiteral("emanet")), Currency());
    }

    void depositFormOnTheDotMatrixPrinter()
    {
        QVERIFY(openDeposit());
        fillDeposit();
        printSettings().dotMatrix = true;
        AnswerPrinterSetup("Command4", this);
        const QByteArray printed
            = m_spooler->receive([this] { QTest::keyClick(depositField(9)->textBox(), Qt::Key_F8); });
        COMPARE_GOLDEN(RawPrintout(printed), "receipts/pages/deposit.txt");
        QVERIFY(m_spooler->jobTitles().contains(QStringLiteral("EMANET ALINDI MAKBUZU")));
    }

    void depositFormAsPdf()
    {
        QVERIFY(openDeposit());
        fillDeposit();
        QTemporaryDir dir;
        QTimer::singleShot(0, this, [&dir] {
            auto *dialog = qobject_cast<PrinterSetupDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            dialog->findChild<QRadioButton *>(QStringLiteral("Option1_2"))->click();
            dialog->findChild<QLineEdit *>(QStringLiteral("Text2"))
                ->setText(dir.filePath(QStringLiteral("emanet.pdf")));
            dialog->findChild<QPushButton *>(QStringLiteral("Command4"))->click();
        });
        QTest::keyClick(depositField(9)->textBox(), Qt::Key_F8);
        const QString page = PdfText(dir.filePath(QStringLiteral("emanet.pdf")));
        for (const char *expected : { "EMANET ALINDI MAKBUZU", "Müşteri A.Ş.", "AÇIKLAMA", "Dava masrafı", "2,500.00",
                 "Yukarıda Tutarı Yazılı Bedel EMANETTEN Alınmıştır.." })
            QVERIFY2(page.contains(QString::fromUtf8(expected)), qPrintable(page));
    }

    // F2 opens Qt's own file dialog; the documents picked are listed with their status; F5 posts the
    // new ones, a second F5 nothing; Esc closes.
    void esmmImportThroughItsKeys()
    {
        QTemporaryDir dir;
        SampleEsmm wrong = NumberedEsmm(2);
        wrong.payable = QStringLiteral("999.00");
        for (const auto &[name, sample] : { std::pair { "1.xml", NumberedEsmm(1) }, std::pair { "2.xml", wrong } }) {
            QFile file(dir.filePath(QLatin1String(name)));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(EsmmXml(sample)) > 0);
        }
        m_kit->window().menuItem(QStringLiteral("mnuesmm"))->trigger();
        auto *screen = m_kit->window().findChild<EsmmImportScreen *>(QStringLiteral("FormEsmm"));
        QVERIFY(screen);
        DcList *list = screen->list();
        QTimer answer; // Qt's own dialog, answered with the names typed, again until it takes them
        connect(&answer, &QTimer::timeout, this, [&dir] {
            QFileDialog *dialog = nullptr;
            for (QWidget *each : QApplication::topLevelWidgets())
                dialog = dialog ? dialog : qobject_cast<QFileDialog *>(each);
            if (!dialog || !dialog->isVisible())
                return;
            dialog->setDirectory(dir.path());
            auto *name = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            name->clear();
            QTest::keyClicks(name, QStringLiteral("\"1.xml\" \"2.xml\""));
            QMetaObject::invokeMethod(dialog, "accept"); // not Enter: the name completer may take it
        });
        answer.start(50);
        QTest::keyClick(list->view(), Qt::Key_F2);
        answer.stop();
        const auto statuses = [list] { return GridColumn(list, 8); };
        QCOMPARE(statuses(), QStringList({ "Yeni", "Uyuşmuyor: ödenecek tutar 999.00, hesaplanan 1,000.00" }));
        QCOMPARE(GridColumn(list, 9).value(1), QDir::toNativeSeparators(dir.filePath(QStringLiteral("2.xml"))));
        const int margins = 2 * (list->view()->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
        for (const int column : { 2, 8, 9 }) // the payer, the status and the file are never cut
            for (const QString &text : GridColumn(list, column))
                QVERIFY2(
                    list->view()->fontMetrics().horizontalAdvance(text) + margins <= list->view()->columnWidth(column),
                    qPrintable(text));
        QCOMPARE(screen->findChild<QLabel *>()->accessibleName(), QStringLiteral("1 Yeni, 1 Uyuşmuyor"));
        QApplication::setActiveWindow(&m_kit->window()); // back from the dialog
        QTest::keyClick(list->view(), Qt::Key_F5);
        QCOMPARE(statuses().first(), QStringLiteral("Aktarıldı (yeni cari E0000001)"));
        QTest::keyClick(list->view(), Qt::Key_F5);
        QCOMPARE(QueryTexts(QStringLiteral("SELECT tutar || '' AS r FROM carhar"), QStringLiteral("r")),
            QStringList { "10000000" });
        QPointer<EsmmImportScreen> open = screen;
        QTest::keyClick(list->view(), Qt::Key_Escape);
        QTRY_VERIFY(open.isNull());
    }

    void aKeyPressedTwiceActsOnce_data()
    {
        QTest::addColumn<QString>("item");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("dialogs");
        QTest::addColumn<QString>("postings");
        QTest::newRow("receipt, store and print") << u"mnumkb"_s << int(Qt::Key_F5) << 1 << u"1"_s;
        QTest::newRow("receipt, print") << u"mnumkb"_s << int(Qt::Key_F8) << 1 << u"0"_s;
        QTest::newRow("deposit, store") << u"mnuemanet"_s << int(Qt::Key_F5) << 0 << u"1"_s;
        QTest::newRow("deposit, print") << u"mnuemanet"_s << int(Qt::Key_F8) << 1 << u"0"_s;
        QTest::newRow("e-SMM, choose files") << u"mnuesmm"_s << int(Qt::Key_F2) << 1 << u"0"_s;
    }

    // The second press of a burst comes while the first still runs: one posting, one dialog.
    void aKeyPressedTwiceActsOnce()
    {
        QFETCH(QString, item);
        QFETCH(int, key);
        QFETCH(int, dialogs);
        QFETCH(QString, postings);
        if (item == u"mnumkb") {
            chooseAccount();
        } else if (item == u"mnuemanet") {
            QVERIFY(openDeposit());
            fillDeposit();
        } else {
            m_kit->window().menuItem(item)->trigger();
        }
        KeyBurst burst(&m_kit->window(), key);
        QCOMPARE(burst.press(), dialogs);
        QCOMPARE(QueryTexts(u"SELECT count(*) AS n FROM carhar"_s, u"n"_s), QStringList { postings });
    }

private:
    XText *field(int index) const { return m_screen->findChild<XText *>(QStringLiteral("xtext1_%1").arg(index)); }
    void typeInto(int index, const QString &keys) { typeIn(m_screen, index, keys); }
    // The card K1: its fee of 1,000.00 becomes the gross.
    void chooseAccount();
    QString totalText() const { return m_screen->findChild<QLabel *>(QStringLiteral("toplam"))->text(); }
    static void typeIn(QWidget *screen, int index, const QString &keys);
    DepositScreen *openDeposit();
    XText *depositField(int index) const
    {
        return m_screenOfDeposit->findChild<XText *>(QStringLiteral("xtext1_%1").arg(index));
    }
    void fillDeposit();
    QPointer<QWidget> m_screenOfDeposit;
};

void TestReceiptScreen::typeIn(QWidget *screen, int index, const QString &keys)
{
    TypeIntoField(screen->findChild<XText *>(QStringLiteral("xtext1_%1").arg(index)), keys);
}

void TestReceiptScreen::chooseAccount()
{
    typeInto(2, QStringLiteral("K1"));
    QTest::keyClick(field(2)->textBox(), Qt::Key_Return);
}

DepositScreen *TestReceiptScreen::openDeposit()
{
    m_kit->window().menuItem(QStringLiteral("mnuemanet"))->trigger();
    auto *deposit = m_kit->window().findChild<DepositScreen *>(QStringLiteral("Form6"));
    m_screenOfDeposit = deposit;
    return deposit;
}

void TestReceiptScreen::fillDeposit()
{
    typeIn(m_screenOfDeposit, 0, QStringLiteral("120"));
    typeIn(m_screenOfDeposit, 2, QStringLiteral("K1"));
    QTest::keyClick(depositField(2)->textBox(), Qt::Key_Return);
    typeIn(m_screenOfDeposit, 8, QStringLiteral("Dava masrafı"));
    typeIn(m_screenOfDeposit, 9, QStringLiteral("2500"));
}

QTEST_MAIN(TestReceiptScreen)
#include "tst_receiptscreen.moc"
