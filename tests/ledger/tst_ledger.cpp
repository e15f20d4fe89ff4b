#include "books/Clock.h"
#include "books/Parameters.h"
#include "books/Postings.h"
#include "controls/DcCellEditor.h"
#include "controls/DcList.h"
#include "ledger/LedgerScreen.h"
#include "ledger/MonthlyReportScreen.h"
#include "money/AmountConventions.h"
#include "testsupport/Books.h"
#include "testsupport/QueryTexts.h"
#include "testsupport/ScreenFixture.h"
#include "testsupport/Typing.h"

#include <QLabel>
#include <QRadioButton>
#include <QTableView>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

void book(int islem, QDate date, qint64 brut, qint64 stopaj, qint64 fon, qint64 kdv, const QString &cari = QString(),
    qint64 withheld = 0)
{
    QVERIFY(AddLedgerRow(islem, date, { brut, stopaj, fon, kdv, withheld }, cari));
}

QStringList storedRows()
{
    return StoredRows(u"islem, tarih, evrak, cari, ack, brut, stopaj, fon, kdv FROM defter ORDER BY oto"_s, u':');
}

} // namespace

class TestLedger : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        SetToday(QDate(2026, 11, 16));
        m_kit = std::make_unique<ScreenFixture>();
        QVERIFY(m_kit->isReady());
        amountConventions().tlonda = 2;
        parameters().stopaj = 20;
        parameters().fon = 1;
        parameters().kdv = 18;
    }

    void cleanup()
    {
        m_kit.reset();
        SetToday(QDate());
    }

    void opensOnTheIncomeOfTheYear()
    {
        book(0, QDate(2026, 12, 31), 1000, 200, 10, 180); // the year's ends, entered out of date order
        book(0, QDate(2025, 12, 31), 999, 0, 0, 0); // another year
        book(1, QDate(2026, 3, 16), 500, 0, 0, 90); // the other side
        book(0, QDate(2026, 1, 1), 300, 60, 3, 54);
        m_ledger = m_kit->open<LedgerScreen>("mnusdef", "Form8");
        QVERIFY(m_ledger);
        QCOMPARE(m_ledger->windowTitle(), QStringLiteral("Serbest Meslek Defteri (Gelir)"));
        QTest::qWait(250); // the rows wait for a short pause after opening
        QVERIFY(!m_ledger->findChild<QRadioButton *>(QStringLiteral("Option1_0"))->isEnabled());
        QCOMPARE(grid(m_ledger)->ListCount(), 0);
        QTRY_COMPARE(grid(m_ledger)->ListCount(), 3);
        QVERIFY(m_ledger->findChild<QRadioButton *>(QStringLiteral("Option1_0"))->isEnabled());
        QCOMPARE(GridColumn(grid(m_ledger), LedgerScreen::Tarih), QStringList({ "01.01.2026", "31.12.2026", "" }));
        QCOMPARE(GridColumn(grid(m_ledger), LedgerScreen::Brut), QStringList({ "300.00", "1,000.00", "" }));
        QCOMPARE(grid(m_ledger)->CurSat(), 2);
        QCOMPARE(QStringList({ label(1), label(2), label(3), label(4) }),
            QStringList({ "1,300.00", "260.00", "13.00", "234.00" }));
        grid(m_ledger)->ChngSat(1);
        QCOMPARE(label(0), QStringLiteral("970.00"));
    }

    void grossBringsItsTaxes()
    {
        QVERIFY(openLedger());
        QTest::keyClick(grid(m_ledger)->view(), Qt::Key_Return);
        typeCell(QStringLiteral("05"));
        typeCell(QStringLiteral("M1"));
        typeCell(QStringLiteral("Danışmanlık"));
        typeCell(QStringLiteral("1000"));
        QCOMPARE(grid(m_ledger)->CurrentCol(), int(LedgerScreen::Stopaj));
        QCOMPARE(QStringList({ grid(m_ledger)->Text(LedgerScreen::Stopaj), grid(m_ledger)->Text(LedgerScreen::Fon),
                     grid(m_ledger)->Text(LedgerScreen::Kdv) }),
            QStringList({ "200", "10", "180" }));
        QCOMPARE(label(0), QStringLiteral("970.00"));
        for (int cell = 0; cell < 3; ++cell)
            QTest::keyClick(grid(m_ledger)->editor(), Qt::Key_Return);
        QCOMPARE(storedRows(), QStringList { "0:46331:M1::Danışmanlık:10000000:2000000:100000:1800000" });
        QCOMPARE(label(4), QStringLiteral("180.00"));
        QCOMPARE(grid(m_ledger)->ListCount(), 2);

        grid(m_ledger)->ChngSat(0); // a second save of the stored row edits it
        QTest::keyClick(grid(m_ledger)->view(), Qt::Key_Return);
        for (int cell = 0; cell < 2; ++cell)
            QTest::keyClick(grid(m_ledger)->editor(), Qt::Key_Return);
        grid(m_ledger)->editor()->clear();
        typeCell(QStringLiteral("Danışma"));
        for (int cell = 0; cell < 4; ++cell)
            QTest::keyClick(grid(m_ledger)->editor(), Qt::Key_Return);
        QCOMPARE(storedRows(), QStringList { "0:46331:M1::Danışma:10000000:2000000:100000:1800000" });
        QVERIFY(m_kit->messages().entries().isEmpty());
    }

    void grossOfZeroIsRefusedUntilCorrected()
    {
        QVERIFY(openLedger());
        QTest::keyClick(grid(m_ledger)->view(), Qt::Key_Return);
        typeCell(QStringLiteral("05"));
        typeCell(QString());
        typeCell(QString());
        typeCell(QStringLiteral("0"));
        QCOMPARE(m_kit->messages().texts(), QStringList { "Sayı Olmalı.." });
        QCOMPARE(grid(m_ledger)->CurrentCol(), int(LedgerScreen::Brut)); // not accepted
        grid(m_ledger)->editor()->clear();
        typeCell(QStringLiteral("500"));
        QCOMPARE(grid(m_ledger)->CurrentCol(), int(LedgerScreen::Stopaj));
        QCOMPARE(grid(m_ledger)->Text(LedgerScreen::Stopaj), QStringLiteral("100"));
        QCOMPARE(m_kit->messages().texts().size(), 1);
    }

    void expenseBook()
    {
        book(1, QDate(2026, 3, 16), 500, 0, 0, 90);
        QVERIFY(openLedger());
        m_ledger->findChild<QRadioButton *>(QStringLiteral("Option1_1"))->click();
        QCOMPARE(m_ledger->windowTitle(), QStringLiteral("Serbest Meslek Defteri (Gider)"));
        DcList *list = grid(m_ledger);
        QCOMPARE(QStringList({ list->Baslik(0), list->Baslik(1), list->Baslik(2), list->Baslik(3), list->Baslik(4) }),
            QStringList({ "Tarih", "Evrak", "Açıklama", "Matrah", "Kdv" }));
        QCOMPARE(list->ListCount(), 2);
        QCOMPARE(QStringList({ label(1), label(2), label(3), label(4) }), QStringList({ "500.00", "", "", "90.00" }));
        QTest::keyClick(list->view(), Qt::Key_Return);
        typeCell(QStringLiteral("06"));
        typeCell(QStringLiteral("F7"));
        typeCell(QStringLiteral("Kira"));
        typeCell(QStringLiteral("0"));
        QCOMPARE(m_kit->messages().texts(), QStringList { "Bir Sayi Girmelisiniz." }); // the grid's own check
        list->editor()->clear();
        typeCell(QStringLiteral("2000"));
        typeCell(QStringLiteral("360"));
        QCOMPARE(storedRows().last(), QStringLiteral("1:46332:F7::Kira:20000000:0:0:3600000"));
        QCOMPARE(label(4), QStringLiteral("450.00"));
    }

    // A receipt's row walked through keeps its account and its taxes: its fund is 1 % of the
    // withholding (2.00), not of the gross the ledger would take (10.00).
    void receiptRowKeepsItsAccount()
    {
        book(0, QDate(2026, 11, 2), 1000, 200, 2, 180, QStringLiteral("K1"));
        QVERIFY(openLedger());
        QTest::keyClick(grid(m_ledger)->view(), Qt::Key_Up);
        QTest::keyClick(grid(m_ledger)->view(), Qt::Key_Return);
        for (int cell = 0; cell < 7; ++cell)
            QTest::keyClick(grid(m_ledger)->editor(), Qt::Key_Return);
        QCOMPARE(storedRows(), QStringList { "0:46328:E1:K1:Kayıt:10000000:2000000:20000:1800000" });
    }

    void deleteAsksFirst()
    {
        book(0, QDate(2026, 3, 15), 1000, 200, 10, 180);
        QVERIFY(openLedger());
        QTest::keyClick(grid(m_ledger)->view(), Qt::Key_Delete); // the empty row: nothing to ask
        QVERIFY(m_kit->messages().entries().isEmpty());
        QTest::keyClick(grid(m_ledger)->view(), Qt::Key_Up);
        m_kit->messages().answerNext(true);
        QTest::keyClick(grid(m_ledger)->view(), Qt::Key_Delete);
        QCOMPARE(m_kit->messages().texts(), QStringList { "Kayıt Silinecek Eminmisiniz ?" });
        QVERIFY(storedRows().isEmpty());
        QCOMPARE(grid(m_ledger)->ListCount(), 1);
        QCOMPARE(label(1), QString());
    }

    void monthlyReport_data()
    {
        QTest::addColumn<qint64>("withheld"); // by the payer of the March receipt
        QTest::addColumn<QString>("shown");
        QTest::newRow("nothing withheld") << qint64(0) << QString();
        QTest::newRow("9/10 of the VAT withheld") << qint64(162) << QStringLiteral("162.00");
    }

    void monthlyReport()
    {
        QFETCH(qint64, withheld);
        QFETCH(QString, shown);
        book(0, QDate(2026, 12, 31), 1000, 200, 10, 180); // the year's ends
        book(1, QDate(2026, 1, 1), 500, 0, 0, 90);
        book(0, QDate(2026, 3, 15), 1000, 200, 10, 180, QString(), withheld);
        book(1, QDate(2026, 3, 20), 500, 0, 0, 90);
        book(2, QDate(2026, 11, 1), 100, 0, 0, 18); // any other side counts as an expense
        book(0, QDate(2025, 3, 15), 7777, 0, 0, 0); // another year
        book(0, QDate(), 4444, 0, 0, 0); // no date, no month
        auto *report = m_kit->open<MonthlyReportScreen>("mnukdv", "Form9");
        QVERIFY(report);
        DcList *list = grid(report);
        QCOMPARE(list->ListCount(), 14);
        const auto row = [list](int r) {
            QStringList texts;
            for (int c = 0; c < 8; ++c)
                texts << list->view()->model()->index(r, c).data().toString();
            return texts;
        };
        QCOMPARE(row(0), QStringList({ "Ocak", "500.00", "90.00", "", "", "", "", "" }));
        QCOMPARE(row(1), QStringList({ "Şubat", "", "", "", "", "", "", "" }));
        QCOMPARE(row(2), QStringList({ "Mart", "500.00", "90.00", "1,000.00", "180.00", shown, "200.00", "10.00" }));
        QCOMPARE(row(10), QStringList({ "Kasım", "100.00", "18.00", "", "", "", "", "" }));
        QCOMPARE(row(11), QStringList({ "Aralık", "", "", "1,000.00", "180.00", "", "200.00", "10.00" }));
        QCOMPARE(row(12), QStringList({ "", "", "", "", "", "", "", "" }));
        QCOMPARE(
            row(13), QStringList({ "TOPLAM", "1,100.00", "198.00", "2,000.00", "360.00", shown, "400.00", "20.00" }));
        QPointer<MonthlyReportScreen> open = report;
        QTest::keyClick(list->view(), Qt::Key_Escape);
        QTRY_VERIFY(open.isNull()); // Esc closes the report
    }

private:
    LedgerScreen *openLedger();
    DcList *grid(QWidget *screen) const { return screen->findChild<DcList *>(QStringLiteral("dclist1")); }
    QString label(int index) const
    {
        return m_ledger->findChild<QLabel *>(QStringLiteral("Label1_%1").arg(index))->accessibleName();
    }
    void typeCell(const QString &keys);

    std::unique_ptr<ScreenFixture> m_kit;
    QPointer<LedgerScreen> m_ledger;
};

LedgerScreen *TestLedger::openLedger()
{
    m_ledger = m_kit->open<LedgerScreen>("mnusdef", "Form8");
    if (!m_ledger)
        return nullptr;
    const auto *side = m_ledger->findChild<QRadioButton *>(QStringLiteral("Option1_1"));
    return QTest::qWaitFor([side] { return side->isEnabled(); }) ? m_ledger.data() : nullptr; // the opening pause
}

void TestLedger::typeCell(const QString &keys)
{
    typeKeys(grid(m_ledger)->editor(), keys);
    QTest::keyClick(grid(m_ledger)->editor(), Qt::Key_Return);
}

QTEST_MAIN(TestLedger)
#include "tst_ledger.moc"
