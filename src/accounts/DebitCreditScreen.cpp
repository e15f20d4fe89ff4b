#include "accounts/DebitCreditScreen.h"

#include "books/AccessLayer.h"
#include "books/DataFiles.h"
#include "books/TurkishText.h"
#include "controls/DcList.h"
#include "controls/ListWindow.h"
#include "controls/OpenInMain.h"
#include "money/AmountConventions.h"
#include "printing/PagedReport.h"
#include "printing/PrintPreset.h"
#include "printing/PrintSettings.h"
#include "printing/Prnx.h"

#include <QApplication>

DebitCreditScreen::DebitCreditScreen(QWidget *parent)
    : AccountRangeScreen(QStringLiteral("Form10"), QStringLiteral("Genel Borç Alacak Listesi"), parent)
{
}

// Sums by stored code and side in the order of the covering index (kod, ba, tarih, tutar), the
// two sides of a code side by side; then the card of each code (once per code, not per
// transaction, in any case spelling: "ışık" is the card "IŞIK") gives the title and the type, and
// the spellings of one card add up. A negative amount lowers its side's sum before the sum's
// size is taken.
std::vector<DebitCreditScreen::Account> DebitCreditScreen::accounts() const
{
    QVariantList values;
    const QString sql
        = QStringLiteral("SELECT k.kod AS kod, k.unv AS unv, k.tip AS tip, sum(s.borc) AS borc, "
                         "sum(s.alacak) AS alacak FROM (SELECT kod, sum(CASE WHEN ba = 0 THEN tutar END) AS borc, "
                         "sum(CASE WHEN ba <> 0 THEN tutar END) AS alacak FROM (SELECT c.kod AS kod, c.ba AS ba, "
                         "sum(c.tutar) AS tutar FROM carhar c WHERE %1 GROUP BY c.kod, c.ba) GROUP BY kod) s "
                         "JOIN carkart k ON %2 GROUP BY k.kod ORDER BY k.kod COLLATE TR")
              .arg(rangeCondition(values), AnySpelling(QStringLiteral("k.kod"), QStringLiteral("s.kod")));
    std::vector<Account> found;
    std::unique_ptr<Recordset> rows;
    if (!QueryOpen(*dataFiles().db, rows, sql, values))
        return found;
    for (; !RsEof(*rows); RsNext(*rows)) {
        Account account;
        account.kod = FieldRead(*rows, QStringLiteral("kod")).toString();
        account.unv = FieldRead(*rows, QStringLiteral("unv")).toString();
        account.debit = AmountSumRead(*rows, QStringLiteral("borc")).magnitude();
        account.credit = AmountSumRead(*rows, QStringLiteral("alacak")).magnitude();
        account.listed = admits(FieldRead(*rows, QStringLiteral("tip")).toInt());
        found.push_back(std::move(account));
    }
    return found;
}

ListWindow *DebitCreditScreen::openListWindow()
{
    if (!m_listWindow) {
        m_listWindow = new ListWindow(QStringLiteral("Form11"), QStringLiteral("Genel Borç Alacak Listesi"));
        m_listWindow->setAttribute(Qt::WA_DeleteOnClose);
        const int onda = amountConventions().tlonda;
        DcList *list = m_listWindow->list();
        const double limit = 999999999999.0;
        list->Add(QStringLiteral("a"), QStringLiteral("kod"), QStringLiteral("Kod"), 80, 8, 0, 0, 0);
        list->Add(QStringLiteral("a"), QStringLiteral("unv"), QStringLiteral("Ünvan"), 210, 40, 0, 0, 0);
        list->Add(QStringLiteral("n"), QStringLiteral("borc"), QStringLiteral("Borç"), 115, limit, 0, onda, 3);
        list->Add(QStringLiteral("n"), QStringLiteral("alacak"), QStringLiteral("Alcak"), 115, limit, 0, onda, 3);
        list->Add(QStringLiteral("n"), QStringLiteral("bbak"), QStringLiteral("B.Bakiye"), 115, limit, 0, onda, 3);
        list->Add(QStringLiteral("n"), QStringLiteral("abak"), QStringLiteral("A.Bakiye"), 115, limit, 0, onda, 3);
    }
    OpenInMain(m_listWindow);
    m_listWindow->fitToColumns();
    return m_listWindow;
}

void DebitCreditScreen::listOnScreen()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    DcList *list = openListWindow()->list();
    list->Clear();
    Currency total[4];
    const auto addRow = [list](const QString &kod, const QString &unv, const Currency(&amounts)[4]) {
        const int row = list->CreateNewCaption();
        if (row < 0)
            return;
        list->setCaption(row, Kod, kod);
        list->setCaption(row, Unv, unv);
        for (int c = 0; c < 4; ++c)
            list->setCaption(row, Borc + c, amounts[c].toString());
    };
    for (const Account &account : accounts()) {
        if (!account.listed)
            continue;
        const Currency amounts[4] = { account.debit, account.credit, account.debitBalance(), account.creditBalance() };
        addRow(account.kod, account.unv, amounts);
        for (int c = 0; c < 4; ++c)
            total[c] += amounts[c];
    }
    addRow(QString(), QStringLiteral("T O P L A M"), total);
    QApplication::restoreOverrideCursor();
}

void DebitCreditScreen::print()
{
    const int kind
        = ChoosePrinter({ QStringLiteral("GENEL BORÇ ALACAK LİSTESİ"), true, true, false, true, 66, {} }, this);
    if (kind != 0)
        printOn(kind);
}

void DebitCreditScreen::printOn(int kind)
{
    const std::vector<Account> found = accounts();
    Prnx prnx;
    if (found.empty() || !prnx.OpenPrinter(kind, printSettings().title, true))
        return;
    ReportLayout layout;
    layout.columns = { { QStringLiteral("Kod"), 8 }, { QStringLiteral("Ünvan"), 40 },
        { QStringLiteral("Borç"), 17, 1, true }, { QStringLiteral("Alacak"), 17, 1, true },
        { QStringLiteral("Borç Bakiye"), 17, 1, true }, { QStringLiteral("Alacak Bakiye"), 17, 1, true } };
    layout.pageTop = [this](Prnx &printer) { printRangeHead(printer); };
    layout.carryCaption = QStringLiteral("Sayfa Devri :");
    layout.totalsOnOwnPage = true;
    PagedReport report(prnx, std::move(layout));
    for (const Account &account : found) {
        report.beginPage(); // every account of the query, listed or not, opens a page when none is
        if (!account.listed)
            continue;
        QVariantList cells
            = { account.kod, account.unv, QVariant::fromValue(account.debit), QVariant::fromValue(account.credit) };
        // A debit-side line ends with its balance; a credit-side line leaves the debit balance blank.
        if (account.debit > account.credit)
            cells << QVariant::fromValue(account.debitBalance());
        else
            cells << QString() << QVariant::fromValue(account.creditBalance());
        report.printRow(cells);
    }
    report.finish();
    prnx.ClosePrinter();
}
