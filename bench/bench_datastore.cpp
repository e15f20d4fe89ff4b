// The data store on the synthetic book. Prints medians of the access layer's everyday work, and the general
// debit/credit aggregate through QueryOpen beside the same statement on the raw engine.

#include "books/AccessLayer.h"
#include "books/Backups.h"
#include "books/DataFiles.h"
#include "books/SqlFunctions.h"
#include "money/DayNumber.h"

#include "SyntheticBook.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <sqlite3.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <random>
#include <vector>

namespace {

using namespace SyntheticBook;

const QString aggregateSql = QStringLiteral(
    "SELECT carhar.kod, sum(carhar.tutar * (carhar.ba = 0)) AS brctop, sum(carhar.tutar * (carhar.ba <> 0)) AS alatop "
    "FROM carhar WHERE carhar.kod >= ?1 AND carhar.kod <= ?2 AND carhar.tarih >= ?3 AND carhar.tarih <= ?4 "
    "GROUP BY carhar.kod ORDER BY carhar.kod");

QVariantList aggregateValues()
{
    return { accountCode(1000), accountCode(8999), DayNumber(QDate(2022, 1, 1)), DayNumber(QDate(2025, 12, 31)) };
}

qint64 aggregateThroughLayer(Database &db)
{
    std::unique_ptr<Recordset> rows;
    qint64 total = 0;
    if (QueryOpen(db, rows, aggregateSql, aggregateValues())) {
        do
            total += FieldRead(*rows, QStringLiteral("brctop")).toLongLong();
        while (RsNext(*rows));
    }
    return total;
}

qint64 aggregateRaw(sqlite3 *db)
{
    sqlite3_stmt *stmt = nullptr;
    const QByteArray sql = aggregateSql.toUtf8();
    sqlite3_prepare_v2(db, sql.constData(), -1, &stmt, nullptr);
    const QVariantList values = aggregateValues();
    const QByteArray from = values[0].toString().toUtf8();
    const QByteArray to = values[1].toString().toUtf8();
    sqlite3_bind_text(stmt, 1, from.constData(), int(from.size()), SQLITE_TRANSIENT);
    sqlite3_bind_text(stmt, 2, to.constData(), int(to.size()), SQLITE_TRANSIENT);
    sqlite3_bind_int64(stmt, 3, values[2].toLongLong());
    sqlite3_bind_int64(stmt, 4, values[3].toLongLong());
    qint64 total = 0;
    while (sqlite3_step(stmt) == SQLITE_ROW)
        total += sqlite3_column_int64(stmt, 1);
    sqlite3_finalize(stmt);
    return total;
}

// The same book as earlier versions made it, its text columns declared with the collation TR
// (tables, rows, then indexes, as a filled book would have them), in `folder`.
bool writeOldBook(const QString &book, const QString &folder)
{
    sqlite3 *db = nullptr;
    const QByteArray path = QDir(folder).filePath(QStringLiteral("xsmm.dat")).toUtf8();
    bool made = sqlite3_open_v2(path.constData(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) == SQLITE_OK
        && registerSqlFunctions(db)
        && sqlite3_exec(db, ("ATTACH '" + book.toUtf8() + "' AS plain").constData(), nullptr, nullptr, nullptr)
            == SQLITE_OK;
    std::vector<QByteArray> steps;
    sqlite3_stmt *schema = nullptr;
    sqlite3_prepare_v2(db,
        "SELECT type, name, sql FROM plain.sqlite_master WHERE sql NOT NULL AND name NOT LIKE 'sqlite%' "
        "ORDER BY type DESC",
        -1, &schema, nullptr);
    std::vector<QByteArray> indexes;
    while (sqlite3_step(schema) == SQLITE_ROW) {
        const QString sql = QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(schema, 2)));
        const QByteArray name = reinterpret_cast<const char *>(sqlite3_column_text(schema, 1));
        if (qstrcmp(reinterpret_cast<const char *>(sqlite3_column_text(schema, 0)), "table") != 0) {
            indexes.push_back(sql.toUtf8());
            continue;
        }
        steps.push_back(
            QString(sql)
                .replace(QRegularExpression(QStringLiteral("(TEXT\\(\\d+\\))")), QStringLiteral("\\1 COLLATE TR"))
                .toUtf8());
        steps.push_back("INSERT INTO main." + name + " SELECT * FROM plain." + name);
    }
    sqlite3_finalize(schema);
    steps.insert(steps.end(), indexes.begin(), indexes.end());
    for (const QByteArray &step : steps)
        made = made && sqlite3_exec(db, step.constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
    if (!made)
        std::fprintf(stderr, "%s\n", sqlite3_errmsg(db));
    sqlite3_close(db);
    return made;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QTemporaryDir dir;
    SetProgramFolder(dir.path());
    if (!CreateDataFiles() || !OpenDataFiles()) {
        std::fprintf(stderr, "cannot create the book\n");
        return 1;
    }
    QElapsedTimer fillTimer;
    fillTimer.start();
    if (!fill(dataFiles().db->handle())) {
        std::fprintf(stderr, "cannot fill the book\n");
        return 1;
    }
    std::printf("book: %d accounts, %d transactions, filled in %.1f s\n", accounts, transactions,
        double(fillTimer.elapsed()) / 1000.0);

    Recordset &carhar = *dataFiles().carhar;
    std::mt19937 random(7);
    std::uniform_int_distribution<int> oto(1, transactions);
    const double seek = medianMicroseconds(5001, [&] { RsSeek(carhar, QStringLiteral("oto"), oto(random)); });

    int walked = 0;
    const double walk = medianMicroseconds(5, [&] {
        walked = 0;
        const QString code = accountCode(0);
        if (!RsSeek(carhar, QStringLiteral("kodtarih"), code))
            return;
        do
            ++walked;
        while (RsNext(carhar) && FieldRead(carhar, QStringLiteral("kod")).toString() == code);
    });

    sqlite3 *raw = nullptr;
    sqlite3_open_v2(DataFilePath().toUtf8().constData(), &raw, SQLITE_OPEN_READONLY, nullptr);
    registerSqlFunctions(raw);
    qint64 layerTotal = 0;
    qint64 rawTotal = 0;
    const double layer = medianMicroseconds(7, [&] { layerTotal = aggregateThroughLayer(*dataFiles().db); });
    const double engine = medianMicroseconds(7, [&] { rawTotal = aggregateRaw(raw); });
    sqlite3_close(raw);

    Recordset &carkart = *dataFiles().carkart;
    int serial = 0;
    const double insert = medianMicroseconds(51, [&] {
        RsAddNew(carkart);
        FieldWrite(carkart, QStringLiteral("kod"), QStringLiteral("Y%1").arg(++serial));
        RsUpdate(carkart);
    });

    // What every start adds: opening with the schema and page checks, and the copy into yedek/
    // beside the least the engine and the file system can do for the same.
    const double open = medianMicroseconds(3, [] { OpenDataFiles(); });
    sqlite3 *checker = nullptr;
    sqlite3_open_v2(DataFilePath().toUtf8().constData(), &checker, SQLITE_OPEN_READONLY, nullptr);
    registerSqlFunctions(checker);
    const double quickCheck
        = medianMicroseconds(3, [&] { sqlite3_exec(checker, "PRAGMA quick_check", nullptr, nullptr, nullptr); });
    sqlite3_close(checker);
    const double copy = medianMicroseconds(3, [] {
        QDir(Backups::folder()).removeRecursively();
        Backups::make(*dataFiles().db);
    });
    const double fileCopy = medianMicroseconds(3, [&] {
        QFile::remove(dir.filePath(QStringLiteral("kopya.dat")));
        QFile::copy(DataFilePath(), dir.filePath(QStringLiteral("kopya.dat")));
    });
    const double fileMb = double(QFileInfo(DataFilePath()).size()) / 1e6;

    // A book of an earlier version is converted once, at its first opening (its copy into yedek/
    // first); beside it, the engine rewriting the same file whole (VACUUM INTO).
    QTemporaryDir oldFolder;
    CloseDataFiles();
    if (!writeOldBook(DataFilePath(), oldFolder.path())) {
        std::fprintf(stderr, "cannot write the book of the collation TR\n");
        return 1;
    }
    SetProgramFolder(oldFolder.path());
    QElapsedTimer convertTimer;
    convertTimer.start();
    const bool converted = OpenDataFiles()
        && dataFiles().db->texts(QStringLiteral("SELECT count(*) FROM sqlite_master WHERE sql LIKE '%COLLATE TR%'"))
            == QStringList { QStringLiteral("0") };
    const double convert = double(convertTimer.nsecsElapsed()) / 1000.0;
    const double rewrite = medianMicroseconds(1, [&] {
        dataFiles().db->run(QStringLiteral("VACUUM INTO '%1'").arg(oldFolder.filePath(QStringLiteral("yeni.dat"))));
    });
    CloseDataFiles();

    std::printf("%-52s %12s %10s\n", "operation (median)", "time", "target");
    std::printf("%-52s %9.1f us %10s\n", "RsSeek on carhar.oto", seek, "<= 50 us");
    std::printf("%-52s %9.1f ms %10s\n",
        QStringLiteral("walk one account's %1 rows in (kod, tarih) order").arg(walked).toUtf8().constData(),
        walk / 1000.0, "");
    std::printf("%-52s %9.1f ms %10s\n", "debit/credit aggregate through QueryOpen", layer / 1000.0, "");
    std::printf("%-52s %9.1f ms %10s\n", "the same statement on the raw sqlite3 API", engine / 1000.0, "");
    std::printf("%-52s %9.2f x  %10s\n", "ratio layer / raw", layer / engine, "<= 1.3 x");
    std::printf("%-52s %9.2f ms %10s\n", "durable single-row insert (RsAddNew..RsUpdate)", insert / 1000.0, "<= 20 ms");
    std::printf("%-52s %9.1f ms %10s\n",
        QStringLiteral("open the %1 MB book with its checks").arg(fileMb, 0, 'f', 0).toUtf8().constData(),
        open / 1000.0, "");
    std::printf("%-52s %9.1f ms %10s\n", "  of which PRAGMA quick_check on the raw engine", quickCheck / 1000.0, "");
    std::printf("%-52s %9.1f ms %10s\n", "online backup into yedek/", copy / 1000.0, "");
    std::printf("%-52s %9.1f ms %10s\n", "  a plain file copy of the same file", fileCopy / 1000.0, "");
    std::printf("%-52s %9.1f ms %10s\n", "first opening of the book of an earlier version", convert / 1000.0,
        converted ? "(converted)" : "(NOT converted)");
    std::printf("%-52s %9.1f ms %10s\n", "  VACUUM INTO of the same book on the engine", rewrite / 1000.0, "");
    if (layerTotal != rawTotal) {
        std::fprintf(stderr, "the two aggregates differ: %lld and %lld\n", layerTotal, rawTotal);
        return 1;
    }
    return 0;
}
