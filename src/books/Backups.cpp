#include "books/Backups.h"

#include "books/Clock.h"
#include "books/DataFiles.h"
#include "books/Database.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

#include <sqlite3.h>

#include <algorithm>
#include <set>

namespace {

const QString namePattern = QStringLiteral("xsmm-*.dat");
constexpr int keptLatest = 10;
constexpr int keptDays = 10;
constexpr int keptMonths = 12;

// The day the books last were copied, and which books they were.
struct LastCopy
{
    QString path;
    QDate day;
};

LastCopy &lastCopy()
{
    static LastCopy last;
    return last;
}

QStringList copiesOldestFirst()
{
    return QDir(Backups::folder()).entryList({ namePattern }, QDir::Files, QDir::Name);
}

// "xsmm-2026-11-23-174455.dat" -> 2026-11-23
QDate dayOf(const QString &name)
{
    return QDate::fromString(name.mid(5, 10), QStringLiteral("yyyy-MM-dd"));
}

bool copyInto(Database &db, const QString &path)
{
    sqlite3 *target = nullptr;
    bool copied = sqlite3_open_v2(
                      QFile::encodeName(path).constData(), &target, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr)
        == SQLITE_OK;
    if (copied) {
        sqlite3_backup *backup = sqlite3_backup_init(target, "main", db.handle(), "main");
        copied = backup && sqlite3_backup_step(backup, -1) == SQLITE_DONE;
        copied = sqlite3_backup_finish(backup) == SQLITE_OK && copied;
    }
    sqlite3_close_v2(target);
    return copied;
}

void removeSurplus()
{
    QDir folder(Backups::folder());
    for (const QString &name : Backups::surplus(copiesOldestFirst(), Today()))
        folder.remove(name);
}

} // namespace

namespace Backups {

QString folder()
{
    return ProgramFolder() + QStringLiteral("yedek");
}

bool make(Database &db)
{
    if (!QDir().mkpath(folder()))
        return false;
    const QString name = QStringLiteral("xsmm-%1-%2.dat")
                             .arg(Today().toString(QStringLiteral("yyyy-MM-dd")),
                                 QTime::currentTime().toString(QStringLiteral("HHmmss")));
    const QString path = QDir(folder()).filePath(name);
    const QString building = path + QStringLiteral(".yeni");
    QDir unfinished(folder());
    for (const QString &left : unfinished.entryList({ QStringLiteral("*.yeni") }, QDir::Files))
        unfinished.remove(left); // a copy that was interrupted
    const bool copied = !QFile::exists(path) && copyInto(db, building) && QFile::rename(building, path);
    QFile::remove(building);
    if (copied || QFile::exists(path))
        lastCopy() = { db.path(), Today() };
    removeSurplus();
    return copied;
}

void beforeChange()
{
    Database *db = dataFiles().db.get();
    if (!db || (lastCopy().path == db->path() && lastCopy().day == Today()))
        return;
    make(*db);
}

QString newest()
{
    const QStringList names = copiesOldestFirst();
    return names.isEmpty() ? QString() : QDir(folder()).filePath(names.last());
}

QStringList surplus(const QStringList &names, QDate today)
{
    QStringList sorted = names;
    std::sort(sorted.begin(), sorted.end());
    const QDate firstMonth = QDate(today.year(), today.month(), 1).addMonths(1 - keptMonths);
    std::set<QDate> days;
    std::set<QString> months, kept;
    int copies = 0;
    for (auto name = sorted.crbegin(); name != sorted.crend(); ++name) {
        const QDate day = dayOf(*name);
        if (day.isValid() && ++copies <= keptLatest) // the latest, such as the one before a file's upgrade
            kept.insert(*name);
        const bool newestOfDay = day.isValid() && days.insert(day).second;
        if (!day.isValid() || (newestOfDay && days.size() <= size_t(keptDays))) // a name not ours stays
            kept.insert(*name);
        if (day.isValid() && day >= firstMonth && months.insert(name->mid(5, 7)).second)
            kept.insert(*name);
    }
    QStringList removed;
    for (const QString &name : sorted)
        if (!kept.count(name))
            removed << name;
    return removed;
}

} // namespace Backups
