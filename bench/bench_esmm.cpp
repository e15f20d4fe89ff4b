// The e-SMM import on a book of 1,000,000 account transactions: a ZIP file of 10,000 documents
// over 1,000 payers read, checked and posted, then the same ZIP again (every document already in
// the books), beside the engine inserting the same rows raw in one transaction, in the same run;
// and the memory the process took at its peak.

#include "books/DataFiles.h"
#include "esmm/EsmmImport.h"
#include "testsupport/EsmmSamples.h"

#include "SyntheticBook.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <sqlite3.h>

#include <cstdio>

namespace {

constexpr int documents = 10000;
constexpr int payers = 1000;

double seconds(const std::function<void()> &work)
{
    QElapsedTimer clock;
    clock.start();
    work();
    return double(clock.nsecsElapsed()) / 1e9;
}

QString peakMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return QString();
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return QString::fromLatin1(line.mid(6).trimmed());
    return QString();
}

// The rows of one import, written by the engine alone.
bool insertRaw(sqlite3 *db)
{
    const char *sql[] = { "INSERT INTO carhar (kod, tarih, islem, evrak, ack, ba, tutar) VALUES ('R', 46342, 2, "
                          "'00000001', 'Hukuki danışmanlık', 0, 10000000)",
        "INSERT INTO defter (sira, tarih, islem, evrak, cari, ack, brut, stopaj, fon, kdv) VALUES (0, 46342, 0, "
        "'00000001', 'R', 'Alıcı', 10000000, 2000000, 0, 2000000)",
        "INSERT INTO makbuz (defter, carhar, tevkoran, tevkifat, makbuzno, ettn, vkn, dosya) VALUES (NULL, "
        "last_insert_rowid(), 0, 0, 'GIB', lower(hex(randomblob(16))), '1', 'a.zip')" };
    sqlite3_stmt *statements[3] = {};
    for (int i = 0; i < 3; ++i)
        if (sqlite3_prepare_v2(db, sql[i], -1, &statements[i], nullptr) != SQLITE_OK)
            return false;
    sqlite3_exec(db, "BEGIN", nullptr, nullptr, nullptr);
    for (int n = 0; n < documents; ++n)
        for (sqlite3_stmt *each : statements) {
            sqlite3_step(each);
            sqlite3_reset(each);
        }
    for (sqlite3_stmt *each : statements)
        sqlite3_finalize(each);
    return sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr) == SQLITE_OK;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QTemporaryDir dir;
    sqlite3 *raw = SyntheticBook::openBook(dir.path(), SyntheticBook::fill);
    if (!raw)
        return 1;
    std::vector<std::pair<QString, QByteArray>> entries;
    for (int n = 1; n <= documents; ++n) {
        SampleEsmm sample = NumberedEsmm(n);
        sample.payerId = QStringLiteral("%1").arg(1000000000 + n % payers);
        sample.payerName = QStringLiteral("Alıcı %1").arg(n % payers);
        entries.emplace_back(QStringLiteral("e-smm/%1.xml").arg(n), EsmmXml(sample));
    }
    const QString zip = dir.filePath(QStringLiteral("indirilen.zip"));
    if (!WriteZip(zip, entries))
        return 1;
    entries.clear();
    const QString before = peakMemory();

    EsmmImport first, second;
    QString why;
    const double posting = seconds([&] {
        first.read({ zip });
        first.post(&why);
    });
    const double again = seconds([&] {
        second.read({ zip });
        second.post(&why);
    });
    const double engine = seconds([&] { insertRaw(raw); });
    std::printf("e-SMM import, %d documents over %d payers, book of %d account transactions\n", documents, payers,
        SyntheticBook::transactions);
    std::printf("  first run (%s): %.2f s (target <= 5 s)\n", qPrintable(first.summary()), posting);
    std::printf("  same ZIP again (%s): %.2f s (target <= 2 s)\n", qPrintable(second.summary()), again);
    std::printf("  the engine inserting the same rows raw, one transaction: %.2f s\n", engine);
    std::printf("  peak memory: %s before the runs, %s after (target <= 200 MiB)\n", qPrintable(before),
        qPrintable(peakMemory()));
    sqlite3_close(raw);
    CloseDataFiles();
    return 0;
}
