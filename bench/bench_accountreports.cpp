// The account reports on the synthetic book of 1,000,000 transactions over 10,000 accounts:
// "Genel Borç Alacak Listesi" from F7 to the filled list and printed on a dot-matrix channel,
// and "Cari Hareket Dökümü" of the account of 30,000 transactions, on the screen and printed.
// Beside them, in the same run: the raw engine doing the same reads with the program's indexes,
// the engine's best plan (an index made for the sums alone), and the same sums read through the
// account-and-date index alone, as files had it before the covering index. Last, the same book
// written as a plain-text journal and balanced by ledger-cli and hledger, where installed.

#include "accounts/AccountStatementScreen.h"
#include "accounts/DebitCreditScreen.h"
#include "books/Parameters.h"
#include "controls/DcList.h"
#include "controls/ListWindow.h"
#include "controls/XText.h"
#include "money/AmountConventions.h"
#include "printing/DosPrint.h"
#include "printing/PrintSettings.h"
#include "printing/Prnx.h"

#include "SyntheticBook.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <sqlite3.h>

#include <cstdio>

using namespace SyntheticBook;

namespace {

const char *sumsSql = "SELECT s.kod, k.unv, k.tip, s.borc, s.alacak FROM (SELECT kod, "
                      "sum(CASE WHEN ba = 0 THEN tutar END) AS borc, sum(CASE WHEN ba <> 0 THEN tutar END) AS alacak "
                      "FROM (SELECT c.kod AS kod, c.ba AS ba, sum(c.tutar) AS tutar FROM carhar c %1 "
                      "WHERE c.kod >= ?1 AND c.kod <= ?2 GROUP BY c.kod, c.ba) GROUP BY kod) s "
                      "JOIN carkart k ON k.kod = s.kod ORDER BY s.kod";
// The same sums in one grouping by account over a (kod, tarih, ba, tutar) index.
const char *flatSumsSql = "SELECT s.kod, k.unv, k.tip, s.borc, s.alacak FROM (SELECT c.kod AS kod, "
                          "sum(CASE WHEN c.ba = 0 THEN c.tutar END) AS borc, sum(CASE WHEN c.ba <> 0 THEN c.tutar END) "
                          "AS alacak FROM carhar c INDEXED BY flat_sums WHERE c.kod >= ?1 AND c.kod <= ?2 "
                          "GROUP BY c.kod) s JOIN carkart k ON k.kod = s.kod ORDER BY s.kod";
const char *statementSql = "SELECT c.kod, c.tarih, c.islem, c.evrak, c.ack, c.ba, c.tutar FROM carhar c "
                           "WHERE c.kod >= ?1 AND c.kod <= ?2 ORDER BY c.kod, c.tarih, c.islem, c.oto";

QByteArray sums(const char *indexed = "")
{
    return QByteArray(sumsSql).replace("%1", indexed);
}

// The peak resident memory since the last reset, in MiB (Linux).
double peakMiB()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').value(0).toDouble() / 1024;
    return 0;
}

void resetPeak()
{
    QFile refs(QStringLiteral("/proc/self/clear_refs"));
    if (refs.open(QIODevice::WriteOnly))
        refs.write("5");
}

// Prints with a channel that takes every byte; answers the milliseconds and the pages.
std::pair<double, int> timePrint(const std::function<void()> &print)
{
    auto channel = std::make_unique<TakingChannel>();
    TakingChannel *printer = channel.get();
    SetRawChannel(std::move(channel));
    QElapsedTimer clock;
    clock.start();
    print();
    return { double(clock.nsecsElapsed()) / 1e6, printer->pages };
}

// The book's transactions as a journal both plain-text ledgers read: debits to the account,
// credits from it, the other side to a cash account.
bool writeJournal(sqlite3 *db, const QString &path)
{
    QFile journal(path);
    if (!journal.open(QIODevice::WriteOnly))
        return false;
    sqlite3_stmt *rows = nullptr;
    sqlite3_prepare_v2(db, "SELECT kod, tarih, ba, tutar FROM carhar ORDER BY tarih", -1, &rows, nullptr);
    const QDate origin(1899, 12, 30);
    QByteArray text;
    while (sqlite3_step(rows) == SQLITE_ROW) {
        const QByteArray kod(reinterpret_cast<const char *>(sqlite3_column_text(rows, 0)));
        const QDate date = origin.addDays(sqlite3_column_int64(rows, 1));
        const qint64 amount = sqlite3_column_int64(rows, 3) * (sqlite3_column_int(rows, 2) == 0 ? 1 : -1);
        text += date.toString(QStringLiteral("yyyy-MM-dd")).toLatin1() + " hareket\n    cari:" + kod + "  "
            + QByteArray::number(double(amount) / 10000, 'f', 2) + "\n    kasa\n\n";
        if (text.size() > (1 << 20)) {
            journal.write(text);
            text.clear();
        }
    }
    sqlite3_finalize(rows);
    journal.write(text);
    return true;
}

// Runs a balance report of a plain-text ledger; the seconds it took, or a negative number when
// the program is not there or fails.
double timeBalance(const QString &program, const QStringList &arguments)
{
    if (QStandardPaths::findExecutable(program).isEmpty())
        return -1;
    QProcess run;
    run.setStandardOutputFile(QProcess::nullDevice());
    QElapsedTimer clock;
    clock.start();
    run.start(program, arguments);
    if (!run.waitForFinished(600000) || run.exitCode() != 0)
        return -1;
    return double(clock.nsecsElapsed()) / 1e9;
}

void printBalanceRow(const char *what, double seconds, double program)
{
    if (seconds < 0)
        std::printf("%-50s %12s\n", what, "not installed");
    else
        std::printf("%-50s %9.2f s  (%.0f x the program's list)\n", what, seconds, seconds * 1e6 / program);
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTemporaryDir dir;
    sqlite3 *raw = openBook(dir.path(), fill);
    if (!raw)
        return 1;
    amountConventions().tlonda = 2;
    parameters().unvan = QStringLiteral("Av. Deniz Kaya");
    const QString first = accountCode(0);
    const QString last = accountCode(accounts - 1);

    DebitCreditScreen debitCredit;
    resetPeak();
    const double before = peakMiB();
    const double listAll = medianMicroseconds(9, [&] { debitCredit.listOnScreen(); });
    const double peak = peakMiB();
    const int listed = debitCredit.listWindow()->list()->ListCount() - 1;
    const double rawAll = medianMicroseconds(9, [&] { readAll(raw, sums().constData(), { first, last }); });
    const double oldIndex = medianMicroseconds(3, [&] {
        readAll(raw, sums("INDEXED BY carhar_kodtarih").constData(), { first, last });
    });

    AccountStatementScreen statement;
    statement.findChild<XText *>(QStringLiteral("xtext1_0"))->setText(accountCode(0));
    statement.findChild<XText *>(QStringLiteral("xtext1_1"))->setText(accountCode(0));
    const double listStatement = medianMicroseconds(5, [&] { statement.listOnScreen(); });
    const int statementRows = statement.listWindow()->list()->ListCount();
    const double rawStatement = medianMicroseconds(5, [&] {
        readAll(raw, statementSql, { accountCode(0), accountCode(0) });
    });

    sqlite3_exec(raw, "CREATE INDEX flat_sums ON carhar (kod, tarih, ba, tutar)", nullptr, nullptr, nullptr);
    const double flatAll = medianMicroseconds(9, [&] { readAll(raw, flatSumsSql, { first, last }); });
    sqlite3_exec(raw, "DROP INDEX flat_sums", nullptr, nullptr, nullptr);
    sqlite3_exec(raw,
        "CREATE INDEX best_sums ON carhar (kod, ba, tutar);"
        "CREATE INDEX best_statement ON carhar (kod, tarih, islem, oto, evrak, ack, ba, tutar)",
        nullptr, nullptr, nullptr);
    const double bestAll = medianMicroseconds(9, [&] { readAll(raw, sums().constData(), { first, last }); });
    const double bestStatement = medianMicroseconds(5, [&] {
        readAll(raw, statementSql, { accountCode(0), accountCode(0) });
    });
    sqlite3_exec(raw, "DROP INDEX best_sums; DROP INDEX best_statement", nullptr, nullptr, nullptr);
    const QString journal = dir.filePath(QStringLiteral("defter.journal"));
    const bool written = writeJournal(raw, journal);
    sqlite3_close(raw);
    const double ledgerCli = written ? timeBalance(QStringLiteral("ledger"),
                                 { QStringLiteral("-f"), journal, QStringLiteral("balance"), QStringLiteral("--flat") })
                                     : -1;
    const double hledger = written
        ? timeBalance(QStringLiteral("hledger"), { QStringLiteral("-f"), journal, QStringLiteral("balance") })
        : -1;

    printSettings().title = QStringLiteral("GENEL BORÇ ALACAK LİSTESİ");
    printSettings().lines = 66;
    printSettings().dotMatrix = true;
    // The print itself, without the settings dialog: what F8 runs once the dialog is confirmed.
    const auto [printAllMs, allPages] = timePrint([&] { debitCredit.printOn(Prnx::Raw); });
    const auto [printStatementMs, statementPages] = timePrint([&] { statement.printOn(Prnx::Raw); });

    printHeader();
    printRow(QStringLiteral("Genel Borç Alacak: %1 accounts, F7 to list").arg(listed), listAll, rawAll, bestAll,
        "<= 250 ms, <= 1.4 x best");
    printRow(QStringLiteral("  one grouping over (kod, tarih, ba, tutar)"), flatAll, rawAll, bestAll, "(raw engine)");
    printRow(QStringLiteral("  the sums by the (kod, tarih) index only"), oldIndex, rawAll, bestAll, "(raw engine)");
    printRow(QStringLiteral("Cari Hareket Dökümü: %1 lines of one account").arg(statementRows), listStatement,
        rawStatement, bestStatement, "<= 150 ms, <= 3 x raw");
    std::printf("Genel Borç Alacak printed: %d raw pages in %.1f ms (target <= 2 s)\n", allPages, printAllMs);
    std::printf("Cari Hareket Dökümü printed: %d raw pages in %.1f ms\n", statementPages, printStatementMs);
    printBalanceRow("ledger-cli balance --flat, the same book", ledgerCli, listAll);
    printBalanceRow("hledger balance, the same book", hledger, listAll);
    std::printf("Peak memory while listing: %.1f MiB in all, %.1f MiB above the open book (target <= 64 MiB)\n", peak,
        peak - before);
    return 0;
}
