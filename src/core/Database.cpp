#include "core/Database.h"

#include "core/SqlFunctions.h"

#include <QFileInfo>

#include <sqlite3.h>

Database::Database(sqlite3 *db, const QString &path)
    : m_db(db)
    , m_path(path)
{
}

Database::~Database()
{
    sqlite3_close_v2(m_db);
}

std::unique_ptr<Database> Database::connect(const QString &path, int flags)
{
    sqlite3 *db = nullptr;
    const int rc = sqlite3_open_v2(
        QFileInfo(path).absoluteFilePath().toUtf8().constData(), &db, flags | SQLITE_OPEN_NOMUTEX, nullptr);
    std::unique_ptr<Database> database(new Database(db, path));
    if (rc != SQLITE_OK || !registerSqlFunctions(db))
        return nullptr;
    sqlite3_extended_result_codes(db, 1);
    // Reading the schema proves the file is a database without writing to it; every change is
    // then on disk when its statement returns. The lists read rows all over the file: a page
    // cache of 32 MiB keeps them in memory rather than asking the system for each.
    if (!database->run(QStringLiteral("SELECT count(*) FROM sqlite_master"))
        || !database->run(QStringLiteral("PRAGMA synchronous=FULL"))
        || !database->run(QStringLiteral("PRAGMA cache_size=-32768")))
        return nullptr;
    return database;
}

std::unique_ptr<Database> Database::open(const QString &path)
{
    const QFileInfo file(path);
    if (!file.isFile() || !file.isWritable() || !QFileInfo(file.absolutePath()).isWritable())
        return nullptr;
    std::unique_ptr<Database> database = connect(path, SQLITE_OPEN_READWRITE);
    if (database && sqlite3_db_readonly(database->m_db, "main") != 0)
        return nullptr;
    return database;
}

std::unique_ptr<Database> Database::create(const QString &path)
{
    if (QFileInfo::exists(path))
        return nullptr;
    return connect(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
}

bool Database::run(const QString &sql)
{
    return sqlite3_exec(m_db, sql.toUtf8().constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
}
