#pragma once

#include "printing/RawChannel.h"

#include <QString>
#include <QVariant>

#include <functional>

struct sqlite3;

// The synthetic book of the benchmarks, the size of a busy practice's lifetime: 1,000,000
// account transactions over 10,000 accounts and seven years, every transaction type, with one
// account of 30,000 transactions. Fixed seed: every run builds the same book.
namespace SyntheticBook {

constexpr int accounts = 10000;
constexpr int transactions = 1000000;
constexpr int bigAccountRows = 30000;

QString accountCode(int i);
// Writes the book straight through the engine in one transaction, as rows come into a user's book
// over the years: the engine keeps no statistics of it (the program never runs ANALYZE), so every
// plan, the program's and the raw engine's alike, is chosen without them. False on an engine error.
bool fill(sqlite3 *db);
// Ten years of the professional's ledger, 2017 to 2026: rows of `defter`, income and expense,
// of the same 10,000 accounts, whose cards the book holds.
constexpr int ledgerRows = 100000;
bool fillLedger(sqlite3 *db);
// Makes the program's data file in folder, fills it, and answers a raw connection to it with
// the program's SQL functions (nullptr on failure, after a message on stderr).
sqlite3 *openBook(const QString &folder, bool (*fillBook)(sqlite3 *));
// A table of timings: the program beside the raw engine doing the same reads and the engine's
// best plan for the same result.
void printHeader();
void printRow(const QString &what, double program, double raw, double best, const char *target);
// Steps through every row of a statement reading every column, as a listing does; texts and
// whole numbers bind to ?1, ?2 …. Answers the rows read.
qint64 readAll(sqlite3 *db, const char *sql, const QVariantList &values);
// The median time of runs of work, in microseconds.
double medianMicroseconds(int runs, const std::function<void()> &work);

// A printer that takes every byte at once.
class TakingChannel : public RawChannel
{
public:
    bool open(const QString &, const QString &) override { return true; }
    bool write(const QByteArray &bytes) override
    {
        received += bytes.size();
        return true;
    }
    bool newPage() override { return true; }
    bool endPage() override
    {
        ++pages;
        return true;
    }
    bool close() override { return true; }
    QString failure() const override { return QString(); }
    qint64 received = 0;
    int pages = 0;
};

} // namespace SyntheticBook
