// The ledger screens on ten years of the book (100,000 defter rows): the monthly report of the
// current year and the income side of the year listed into "Serbest Meslek Defteri", each beside
// the raw engine doing the same reads in the same run, and the plan the engine would use at best.

#include "controls/DcList.h"
#include "core/Clock.h"
#include "core/DataFiles.h"
#include "core/SqlFunctions.h"
#include "ledger/LedgerScreen.h"
#include "ledger/MonthlyReportScreen.h"
#include "money/AmountConventions.h"
#include "money/DayNumber.h"

#include "SyntheticBook.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>

#include <sqlite3.h>

#include <cstdio>

using namespace SyntheticBook;

namespace {

const char *reportSql = "SELECT month(tarih) AS ay, islem = 0 AS gelir, sum(brut), sum(stopaj), sum(fon), sum(kdv) "
                        "FROM defter WHERE tarih >= ?1 AND tarih <= ?2 GROUP BY ay, gelir";
const char *bookSql = "SELECT * FROM defter WHERE islem = 0 AND tarih >= ?1 AND tarih <= ?2 ORDER BY tarih, oto";

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTemporaryDir dir;
    sqlite3 *raw = openBook(dir.path(), fillLedger);
    if (!raw)
        return 1;
    amountConventions().tlonda = 2;
    SetToday(QDate(2026, 11, 16));
    const qint64 first = DayNumber(QDate(2026, 1, 1));
    const qint64 last = DayNumber(QDate(2026, 12, 31));

    MonthlyReportScreen report;
    const double computeReport = medianMicroseconds(11, [&] { report.compute(); });
    const double rawReport = medianMicroseconds(11, [&] { readAll(raw, reportSql, { first, last }); });

    LedgerScreen ledger;
    ledger.show();
    QEventLoop wait; // the rows come after the opening pause
    QTimer::singleShot(700, &wait, &QEventLoop::quit);
    wait.exec();
    auto *grid = ledger.findChild<DcList *>(QStringLiteral("dclist1"));
    const double listBook = medianMicroseconds(7, [&] { ledger.showBook(LedgerScreen::Gelir); });
    const int listed = grid->ListCount() - 1;
    const double rawBook = medianMicroseconds(7, [&] { readAll(raw, bookSql, { first, last }); });

    // At best: covering indexes for the report and the book of a year.
    sqlite3_exec(raw,
        "CREATE INDEX best_report ON defter (tarih, islem, brut, stopaj, fon, kdv);"
        "CREATE INDEX best_book ON defter (islem, tarih, oto, sira, evrak, cari, ack, brut, stopaj, fon, kdv);",
        nullptr, nullptr, nullptr);
    const double bestReport = medianMicroseconds(11, [&] { readAll(raw, reportSql, { first, last }); });
    const double bestBook = medianMicroseconds(7, [&] { readAll(raw, bookSql, { first, last }); });
    sqlite3_exec(raw, "DROP INDEX best_report; DROP INDEX best_book;", nullptr, nullptr, nullptr);
    sqlite3_close(raw);

    printHeader();
    printRow(QStringLiteral("Kdv, Stopaj Raporu: the year by month"), computeReport, rawReport, bestReport, "<= 100 ms");
    printRow(QStringLiteral("Serbest Meslek Defteri: %1 income rows listed").arg(listed), listBook, rawBook, bestBook,
        "<= 200 ms");
    return 0;
}
