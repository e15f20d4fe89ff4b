// The ledger screens on ten years of the book (100,000 defter rows): the monthly report of the
// current year, the income side of the year listed into "Serbest Meslek Defteri" (the entry
// screen and the official book), and the withholding list over all years, each beside the raw
// engine doing the same reads in the same run and the plan the engine would use at best; then
// the official book's income pages printed on a dot-matrix channel that takes the bytes.

#include "books/Clock.h"
#include "books/DataFiles.h"
#include "books/Parameters.h"
#include "books/SqlFunctions.h"
#include "controls/DcList.h"
#include "controls/XText.h"
#include "ledger/LedgerScreen.h"
#include "ledger/MonthlyReportScreen.h"
#include "ledger/OfficialLedgerList.h"
#include "ledger/OfficialLedgerScreen.h"
#include "ledger/WithholdingListScreen.h"
#include "money/AmountConventions.h"
#include "money/DayNumber.h"
#include "printing/DosPrint.h"
#include "printing/PrintSettings.h"
#include "printing/Prnx.h"

#include "SyntheticBook.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>

#include <sqlite3.h>

#include <cstdio>

using namespace SyntheticBook;

namespace {

const char *reportSql = "SELECT month(d.tarih) AS ay, d.islem = 0 AS gelir, sum(d.brut), sum(d.stopaj), sum(d.fon), "
                        "sum(d.kdv), sum(m.tevkifat) FROM defter d LEFT JOIN makbuz m ON m.defter = d.oto "
                        "WHERE d.tarih >= ?1 AND d.tarih <= ?2 GROUP BY ay, gelir";
const char *bookSql = "SELECT * FROM defter WHERE islem = 0 AND tarih >= ?1 AND tarih <= ?2 ORDER BY tarih, oto";
const char *officialSql = "SELECT d.tarih, d.evrak, d.ack, d.brut, d.stopaj, d.fon, d.kdv, m.tevkifat FROM defter d "
                          "LEFT JOIN makbuz m ON m.defter = d.oto "
                          "WHERE d.islem = 0 AND d.tarih >= ?1 AND d.tarih <= ?2 ORDER BY d.tarih, d.oto";
const char *withholdingSql
    = "SELECT d.tarih, d.brut, d.stopaj, k.unv, k.vn, k.vd FROM defter d LEFT JOIN carkart k ON k.kod = d.cari "
      "WHERE d.islem = 0 AND d.stopaj > 0 ORDER BY d.cari, d.tarih, d.oto";

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

    OfficialLedgerScreen official;
    const double listOfficial = medianMicroseconds(7, [&] { official.listOnScreen(); });
    OfficialLedgerList *officialList = official.listScreen();
    const int officialRows = officialList->list()->ListCount();
    const double rawOfficial = medianMicroseconds(7, [&] { readAll(raw, officialSql, { first, last }); });

    WithholdingListScreen withholding;
    auto *since = withholding.findChild<XText *>(QStringLiteral("xtext1_0"));
    auto *withheld = withholding.findChild<DcList *>(QStringLiteral("dclist1"));
    bool bounded = false;
    const double listWithholding = medianMicroseconds(7, [&] {
        // Alternating between no first date and one before the book: the same rows, a new query.
        since->setText((bounded = !bounded) ? QStringLiteral("01.01.2000") : QString());
        emit withheld->ListFocused();
    });
    const int withheldRows = withheld->ListCount();
    const double rawWithholding = medianMicroseconds(7, [&] { readAll(raw, withholdingSql, {}); });

    // At best: covering indexes for each read.
    sqlite3_exec(raw,
        "CREATE INDEX best_report ON defter (tarih, islem, brut, stopaj, fon, kdv);"
        "CREATE INDEX best_book ON defter (islem, tarih, oto, sira, evrak, cari, ack, brut, stopaj, fon, kdv);"
        "CREATE INDEX best_withholding ON defter (islem, cari, tarih, oto, stopaj, brut);",
        nullptr, nullptr, nullptr);
    const double bestReport = medianMicroseconds(11, [&] { readAll(raw, reportSql, { first, last }); });
    const double bestBook = medianMicroseconds(7, [&] { readAll(raw, bookSql, { first, last }); });
    const double bestOfficial = medianMicroseconds(7, [&] { readAll(raw, officialSql, { first, last }); });
    const double bestWithholding = medianMicroseconds(7, [&] { readAll(raw, withholdingSql, {}); });
    sqlite3_exec(
        raw, "DROP INDEX best_report; DROP INDEX best_book; DROP INDEX best_withholding;", nullptr, nullptr, nullptr);
    sqlite3_close(raw);

    parameters().unvan = QStringLiteral("Av. Deniz Kaya");
    printSettings().title = QStringLiteral("SERBEST MESLEK DEFTERİ");
    printSettings().lines = 66;
    auto channel = std::make_unique<TakingChannel>();
    TakingChannel *printer = channel.get();
    SetRawChannel(std::move(channel));
    QElapsedTimer clock;
    clock.start();
    officialList->yazdir(Prnx::Raw, OfficialLedgerList::Gelir);
    const double printMs = double(clock.nsecsElapsed()) / 1e6;

    printHeader();
    printRow(QStringLiteral("Kdv, Stopaj Raporu: the year by month"), computeReport, rawReport, bestReport,
        "<= 100 ms, <= 3 x raw");
    printRow(QStringLiteral("Serbest Meslek Defteri: %1 income rows listed").arg(listed), listBook, rawBook, bestBook,
        "<= 200 ms, <= 3 x raw");
    printRow(QStringLiteral("Resmi defter: %1 income rows listed").arg(officialRows), listOfficial, rawOfficial,
        bestOfficial, "<= 200 ms, <= 3 x raw");
    printRow(QStringLiteral("Stopaj Listesi: %1 rows, all years").arg(withheldRows), listWithholding, rawWithholding,
        bestWithholding, "<= 200 ms, <= 3 x raw");
    std::printf("Resmi defter printed: %d raw pages, %lld bytes in %.1f ms (%.0f pages/s; 1,700 pages: %.2f s)\n",
        printer->pages, printer->received, printMs, printer->pages / printMs * 1000,
        1700 / (printer->pages / printMs * 1000));
    return 0;
}
