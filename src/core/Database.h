#pragma once

#include <QString>
#include <memory>

struct sqlite3;

// One open data file. Made by DbOpen and DbCreate; closed when destroyed.
class Database
{
public:
    // An existing file, read-write; nullptr when it is missing, not a database or cannot be written.
    static std::unique_ptr<Database> open(const QString &path);
    // A new file; nullptr when a file of that name exists already or cannot be made.
    static std::unique_ptr<Database> create(const QString &path);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    sqlite3 *handle() const { return m_db; }
    QString path() const { return m_path; }
    // Runs statements that take no values and return no rows; true on success.
    bool run(const QString &sql);

private:
    Database(sqlite3 *db, const QString &path);
    static std::unique_ptr<Database> connect(const QString &path, int flags);

    sqlite3 *m_db = nullptr;
    QString m_path;
};
