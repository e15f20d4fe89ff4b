#include "books/Database.h"

#include "books/SqlFunctions.h"

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

std::unique_ptr<Database> Database::connect(const QString &path, int flags, int *error)
{
    sqlite3 *db = nullptr;
    const QByteArray name
        = path == QLatin1String(":memory:") ? path.toUtf8() : QFileInfo(path).absoluteFilePath().toUtf8();
    int rc = sqlite3_open_v2(name.constData(), &db, flags | SQLITE_OPEN_NOMUTEX, nullptr);
    std::unique_ptr<Database> database(new Database(db, path));
    if (rc == SQLITE_OK && !registerSqlFunctions(db))
        rc = SQLITE_ERROR;
    if (rc == SQLITE_OK) {
        sqlite3_extended_result_codes(db, 1);
        // Another program reading or writing the file holds it for a moment: wait for it.
        sqlite3_busy_timeout(db, BusyMilliseconds);
        // Reading the schema proves the file is a database without writing to it; every change
        // is then on disk when its statement returns. The lists read rows all over the file: a
        // page cache of 32 MiB keeps them in memory rather than asking the system for each.
        rc = sqlite3_exec(db, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, nullptr);
    }
    if (rc == SQLITE_OK
        && (!database->run(QStringLiteral("PRAGMA synchronous=FULL"))
            || !database->run(QStringLiteral("PRAGMA cache_size=-32768"))))
        rc = SQLITE_ERROR;
    if (error)
        *error = rc & 0xff;
    return rc == SQLITE_OK ? std::move(database) : nullptr;
}

std::unique_ptr<Database> Database::open(const QString &path, int *error)
{
    if (error)
        *error = SQLITE_CANTOPEN;
    const QFileInfo file(path);
    if (!file.isFile() || !file.isWritable() || !QFileInfo(file.absolutePath()).isWritable())
        return nullptr;
    std::unique_ptr<Database> database = connect(path, SQLITE_OPEN_READWRITE, error);
    if (database && sqlite3_db_readonly(database->m_db, "main") != 0) {
        if (error)
            *error = SQLITE_READONLY;
        return nullptr;
    }
    return database;
}

std::unique_ptr<Database> Database::inMemory()
{
    return connect(QStringLiteral(":memory:"), SQLITE_OPEN_READWRITE | SQLITE_OPEN_MEMORY);
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

QStringList Database::texts(const QString &sql, int *error)
{
    QStringList rows;
    sqlite3_stmt *statement = nullptr;
    int rc = sqlite3_prepare_v2(m_db, sql.toUtf8().constData(), -1, &statement, nullptr);
    if (rc == SQLITE_OK)
        while ((rc = sqlite3_step(statement)) == SQLITE_ROW)
            rows << QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(statement, 0)));
    sqlite3_finalize(statement);
    if (error)
        *error = rc == SQLITE_DONE ? SQLITE_OK : rc & 0xff;
    return rows;
}

QString Database::lastFailure() const
{
    switch (sqlite3_errcode(m_db) & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return QStringLiteral("veri dosyası başka bir program tarafından kullanılıyor");
    case SQLITE_FULL:
        return QStringLiteral("disk dolu");
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_CANTOPEN:
        return QStringLiteral("veri dosyasına yazılamıyor");
    case SQLITE_IOERR:
        return QStringLiteral("diske okunamıyor ya da yazılamıyor");
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return QStringLiteral("veri dosyası bozuk");
    default:
        return QString::fromUtf8(sqlite3_errmsg(m_db));
    }
}
