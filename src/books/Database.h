#pragma once

#include <QString>
#include <QStringList>
#include <memory>

struct sqlite3;

// One open data file. Made by DbOpen and DbCreate; closed when destroyed.
class Database
{
public:
    // An existing file, read-write; nullptr when it is missing, not a database or cannot be written.
    // `error` gets the engine's result code of the failure (SQLITE_BUSY: another program holds
    // the file; SQLITE_NOTADB: not a database; SQLITE_CORRUPT: damaged).
    static std::unique_ptr<Database> open(const QString &path, int *error = nullptr);
    // A new file; nullptr when a file of that name exists already or cannot be made.
    static std::unique_ptr<Database> create(const QString &path);
    // An empty database in memory, to compare a file's schema with.
    static std::unique_ptr<Database> inMemory();
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    sqlite3 *handle() const { return m_db; }
    QString path() const { return m_path; }
    // Runs statements that take no values and return no rows; true on success.
    bool run(const QString &sql);
    // The first column of every row of a statement that takes no values, as texts; the engine's
    // result code in `error` (SQLITE_OK when all rows were read).
    QStringList texts(const QString &sql, int *error = nullptr);
    // Why the engine's last statement failed, in the user's words (the file in use by another
    // program, the disk full, the file read-only, …).
    QString lastFailure() const;
    // How long a statement waits for another program's lock on the file before it gives up.
    static constexpr int BusyMilliseconds = 3000;

private:
    Database(sqlite3 *db, const QString &path);
    static std::unique_ptr<Database> connect(const QString &path, int flags, int *error = nullptr);

    sqlite3 *m_db = nullptr;
    QString m_path;
};
