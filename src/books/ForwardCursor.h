#pragma once

#include "books/ReadOnlyCursor.h"

#include <memory>

class Database;
class Statement;

// The rows of one SELECT read one at a time as a listing walks from the first to the last,
// without holding the whole result: it only moves forward, and reads. An engine failure on a
// later row ends the walk there with the query's message.
class ForwardCursor : public ReadOnlyCursor
{
public:
    ~ForwardCursor() override;
    // nullptr when the engine refuses the statement, its values or its first row.
    static std::unique_ptr<ForwardCursor> open(Database &db, const QString &sql, const QVariantList &values);

    bool moveFirst() override { return !m_moved && !m_eof; }
    bool moveLast() override { return false; }
    bool moveNext() override;
    bool movePrevious() override { return false; }
    qint64 count() override { return -1; }

protected:
    bool currentStored(int fieldIndex, QVariant *stored) const override;
    bool currentValue(int fieldIndex, QVariant *value) const override;

private:
    explicit ForwardCursor(std::unique_ptr<Statement> query);

    std::unique_ptr<Statement> m_query;
    bool m_moved = false;
};
