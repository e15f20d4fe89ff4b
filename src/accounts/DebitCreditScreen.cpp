#include "accounts/DebitCreditScreen.h"

#include "books/AccessLayer.h"
#include "books/DataFiles.h"
#include "books/TurkishText.h"
#include "controls/ListWindow.h"
#include "printing/PagedReport.h"
#include "printing/PrintSettings.h"

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
    const QString sql = QStringLiteral(
        "SELECT k.kod AS kod, k.unv AS unv, k.tip AS tip, amountsum(s.borc) AS borc, "
        "amountsum(s.alacak) AS alacak FROM (SELECT kod, amountsum(CASE WHEN ba = 0 THEN tutar END) AS borc, "
        "amountsum(CASE WHEN ba <> 0 THEN tutar END) AS alacak FROM (SELECT c.kod AS kod, c.ba AS ba, "
        "amountsum(c.tutar) AS tutar FROM carhar c WHERE %1 GROUP BY c.kod, c.ba) GROUP BY kod) s "
        "JOIN carkart k ON k.kod = %2 GROUP BY k.kod ORDER BY k.kod COLLATE TR")
                            .arg(rangeCondition(values, Listed::CardsOnly), CardCodeOf(QStringLiteral("s.kod")));
    std::vector<Account> found;
    std::unique_ptr<Recordset> rows;
    if (!QueryWalk(*dataFiles().db, rows, sql, values))
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

// Kod, title, debit, credit, debit balance, credit balance.
const ReportColumns &DebitCreditScreen::columns()
{
    static const ReportColumns declared = { TextColumn(QStringLiteral("kod"), QStringLiteral("Kod"), 8, 80),
        TextColumn(QStringLiteral("unv"), QStringLiteral("Ünvan"), 40, 210),
        AmountColumn(QStringLiteral("borc"), QStringLiteral("Borç"), 17, 115),
        AmountColumn(QStringLiteral("alacak"), QStringLiteral("Alacak"), 17, 115).listedAs(QStringLiteral("Alcak")),
        AmountColumn(QStringLiteral("bbak"), QStringLiteral("Borç Bakiye"), 17, 115)
            .listedAs(QStringLiteral("B.Bakiye")),
        AmountColumn(QStringLiteral("abak"), QStringLiteral("Alacak Bakiye"), 17, 115)
            .listedAs(QStringLiteral("A.Bakiye")) };
    return declared;
}

QVariantList DebitCreditScreen::Account::cells() const
{
    return { kod, unv, QVariant::fromValue(debit), QVariant::fromValue(credit), QVariant::fromValue(debitBalance()),
        QVariant::fromValue(creditBalance()) };
}

void DebitCreditScreen::listOnScreen()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    ListWindow *window = ShowListWindow(
        m_listWindow, QStringLiteral("Form11"), QStringLiteral("Genel Borç Alacak Listesi"), columns());
    std::vector<QVariantList> rows;
    QVariantList total = { QString(), QStringLiteral("T O P L A M") }; // then the four amounts' sums
    Currency sums[4];
    for (const Account &account : accounts()) {
        if (!account.listed)
            continue;
        rows.push_back(account.cells());
        for (int c = 0; c < 4; ++c)
            sums[c] += rows.back()[2 + c].value<Currency>();
    }
    for (const Currency &sum : sums)
        total << QVariant::fromValue(sum);
    rows.push_back(total);
    window->addRows(rows);
    QApplication::restoreOverrideCursor();
}

void DebitCreditScreen::printOn(int kind)
{
    const std::vector<Account> found = accounts();
    if (found.empty())
        return;
    ReportLayout layout;
    layout.columns = columns();
    layout.pageTop = [this](Prnx &printer) { printRangeHead(printer); };
    layout.carryCaption = QStringLiteral("Sayfa Devri :");
    layout.totalsOnOwnPage = true;
    PrintPagedReport(kind, printSettings().title, std::move(layout), [&found](PagedReport &report) {
        for (const Account &account : found) {
            report.beginPage(); // every account of the query, listed or not, opens a page when none is
            if (!account.listed)
                continue;
            QVariantList cells = account.cells();
            // A debit-side line ends with its balance; a credit-side line leaves the debit balance blank.
            if (account.debit > account.credit)
                cells.removeLast();
            else
                cells[4] = QString();
            report.printRow(cells);
        }
    });
}
