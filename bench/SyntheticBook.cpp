#include "SyntheticBook.h"

#include "books/DataFiles.h"
#include "books/SqlFunctions.h"
#include "money/DayNumber.h"

#include <QElapsedTimer>

#include <sqlite3.h>

#include <algorithm>
#include <cstdio>
#include <random>
#include <vector>

namespace SyntheticBook {

namespace {

bool run(sqlite3 *db, const char *sql)
{
    return sqlite3_exec(db, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

// The account cards, each with its title, tax office and tax number.
void addCards(sqlite3 *db)
{
    sqlite3_stmt *card = nullptr;
    sqlite3_prepare_v2(db, "INSERT INTO carkart (kod, unv, vd, vn) VALUES (?1, ?2, 'Kadıköy', ?3)", -1, &card, nullptr);
    for (int i = 0; i < accounts; ++i) {
        const QByteArray code = accountCode(i).toUtf8();
        const QByteArray title = QStringLiteral("Müşteri %1").arg(i).toUtf8();
        const QByteArray taxNumber = QByteArray::number(1000000000 + i);
        sqlite3_bind_text(card, 1, code.constData(), int(code.size()), SQLITE_TRANSIENT);
        sqlite3_bind_text(card, 2, title.constData(), int(title.size()), SQLITE_TRANSIENT);
        sqlite3_bind_text(card, 3, taxNumber.constData(), int(taxNumber.size()), SQLITE_TRANSIENT);
        sqlite3_step(card);
        sqlite3_reset(card);
    }
    sqlite3_finalize(card);
}

} // namespace

QString accountCode(int i)
{
    return QStringLiteral("K%1").arg(i, 5, 10, QLatin1Char('0'));
}

bool fill(sqlite3 *db)
{
    std::mt19937 random(20261123);
    std::uniform_int_distribution<int> account(1, accounts - 1);
    std::uniform_int_distribution<int> day(int(DayNumber(QDate(2020, 1, 1))), int(DayNumber(QDate(2026, 12, 31))));
    std::uniform_int_distribution<int> type(0, 9);
    std::uniform_int_distribution<int> side(0, 1);
    std::uniform_int_distribution<qint64> amount(1, 50000000);
    run(db, "BEGIN");
    addCards(db);
    sqlite3_stmt *row = nullptr;
    sqlite3_prepare_v2(db,
        "INSERT INTO carhar (kod, tarih, islem, evrak, ack, ba, tutar) VALUES (?1, ?2, ?3, 'E1', 'Danışmanlık', ?4, "
        "?5)",
        -1, &row, nullptr);
    for (int i = 0; i < transactions; ++i) {
        const QByteArray code = accountCode(i < bigAccountRows ? 0 : account(random)).toUtf8();
        sqlite3_bind_text(row, 1, code.constData(), int(code.size()), SQLITE_TRANSIENT);
        sqlite3_bind_int64(row, 2, day(random));
        sqlite3_bind_int(row, 3, type(random));
        sqlite3_bind_int(row, 4, side(random));
        sqlite3_bind_int64(row, 5, amount(random));
        if (sqlite3_step(row) != SQLITE_DONE)
            return false;
        sqlite3_reset(row);
    }
    sqlite3_finalize(row);
    return run(db, "COMMIT");
}

bool fillLedger(sqlite3 *db)
{
    std::mt19937 random(20261124);
    std::uniform_int_distribution<int> day(int(DayNumber(QDate(2017, 1, 1))), int(DayNumber(QDate(2026, 12, 31))));
    std::uniform_int_distribution<int> side(0, 1);
    std::uniform_int_distribution<qint64> gross(1, 5000000);
    std::uniform_int_distribution<int> account(0, accounts - 1);
    run(db, "BEGIN");
    addCards(db); // the payers
    sqlite3_stmt *row = nullptr;
    sqlite3_prepare_v2(db,
        "INSERT INTO defter (sira, tarih, islem, evrak, cari, ack, brut, stopaj, fon, kdv) "
        "VALUES (0, ?1, ?2, 'M1', ?3, 'Danışmanlık', ?4, ?5, ?6, ?7)",
        -1, &row, nullptr);
    for (int i = 0; i < ledgerRows; ++i) {
        const qint64 brut = gross(random) * 100;
        const bool income = side(random) == 0;
        const QByteArray code = accountCode(account(random)).toUtf8();
        sqlite3_bind_int64(row, 1, day(random));
        sqlite3_bind_int(row, 2, income ? 0 : 1);
        sqlite3_bind_text(row, 3, code.constData(), int(code.size()), SQLITE_TRANSIENT);
        sqlite3_bind_int64(row, 4, brut);
        sqlite3_bind_int64(row, 5, income ? brut / 5 : 0);
        sqlite3_bind_int64(row, 6, income ? brut / 100 : 0);
        sqlite3_bind_int64(row, 7, brut * 18 / 100);
        if (sqlite3_step(row) != SQLITE_DONE)
            return false;
        sqlite3_reset(row);
    }
    sqlite3_finalize(row);
    return run(db, "COMMIT");
}

sqlite3 *openBook(const QString &folder, bool (*fillBook)(sqlite3 *))
{
    SetProgramFolder(folder);
    if (!CreateDataFiles() || !OpenDataFiles() || !fillBook(dataFiles().db->handle())) {
        std::fprintf(stderr, "cannot build the book\n");
        return nullptr;
    }
    sqlite3 *raw = nullptr;
    sqlite3_open_v2(DataFilePath().toUtf8().constData(), &raw, SQLITE_OPEN_READWRITE, nullptr);
    registerSqlFunctions(raw);
    run(raw, "PRAGMA cache_size=-32768"); // the program's page cache
    return raw;
}

void printHeader()
{
    std::printf("%-50s %12s %12s %12s %9s %9s  %s\n", "work (median)", "program", "raw engine", "best plan", "/ raw",
        "/ best", "target");
}

void printRow(const QString &what, double program, double raw, double best, const char *target)
{
    std::printf("%-50s %9.1f ms %9.1f ms %9.1f ms %7.2f x %7.2f x  %s\n", what.toUtf8().constData(), program / 1000,
        raw / 1000, best / 1000, program / raw, program / best, target);
}

qint64 readAll(sqlite3 *db, const char *sql, const QVariantList &values)
{
    sqlite3_stmt *stmt = nullptr;
    sqlite3_prepare_v2(db, sql, -1, &stmt, nullptr);
    for (int i = 0; i < values.size(); ++i) {
        if (values[i].typeId() == QMetaType::QString) {
            const QByteArray text = values[i].toString().toUtf8();
            sqlite3_bind_text(stmt, i + 1, text.constData(), int(text.size()), SQLITE_TRANSIENT);
        } else {
            sqlite3_bind_int64(stmt, i + 1, values[i].toLongLong());
        }
    }
    qint64 rows = 0;
    while (sqlite3_step(stmt) == SQLITE_ROW) {
        for (int c = 0; c < sqlite3_column_count(stmt); ++c)
            sqlite3_column_value(stmt, c);
        ++rows;
    }
    sqlite3_finalize(stmt);
    return rows;
}

double medianMicroseconds(int runs, const std::function<void()> &work)
{
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        times.push_back(double(timer.nsecsElapsed()) / 1000.0);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

} // namespace SyntheticBook
