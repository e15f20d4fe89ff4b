#pragma once

#include <QString>
#include <QVariant>

struct sqlite3;
struct sqlite3_stmt;

// One prepared SQL statement. Values go in and come out as the engine stores them:
// qint64, double, QString, QByteArray, or an invalid QVariant for Null.
class Statement
{
public:
    Statement(sqlite3 *db, const QString &sql);
    ~Statement();
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;

    bool isValid() const { return m_stmt != nullptr; }
    // Binds values to the parameters ?1, ?2 … in order; false when one does not fit.
    bool bindAll(const QVariantList &values);
    bool bind(int index, const QVariant &value); // index from 1
    // True while a row is ready; done() tells a clean end from an engine error.
    bool next();
    bool done() const { return m_done; }
    // Runs an action statement to its end; true on success.
    bool execute();
    void reset();

    int columnCount() const;
    QVariant column(int index) const;
    // What the engine holds in a column of the current row, and the value read as that kind.
    enum class Kind { Null, Integer, Real, Text, Blob };
    Kind columnKind(int index) const;
    qint64 columnInteger(int index) const;
    QString columnText(int index) const;
    QString columnName(int index) const;
    QString declaredType(int index) const;

private:
    sqlite3_stmt *m_stmt = nullptr;
    bool m_done = false;
};
