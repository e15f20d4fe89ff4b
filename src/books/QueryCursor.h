#pragma once

#include "books/ReadOnlyCursor.h"

#include <memory>

class Database;

// The rows of one SELECT, read once when it opens. Read-only: the listings read, the table
// cursors write.
class QueryCursor : public ReadOnlyCursor
{
public:
    // nullptr when the engine refuses the statement or its values.
    static std::unique_ptr<QueryCursor> open(Database &db, const QString &sql, const QVariantList &values);

    bool moveFirst() override;
    bool moveLast() override;
    bool moveNext() override;
    bool movePrevious() override;
    qint64 count() override { return m_count; }

protected:
    bool currentStored(int fieldIndex, QVariant *stored) const override;

private:
    QueryCursor() = default;
    bool moveTo(qsizetype row);

    std::vector<QVariant> m_cells; // row after row, m_width cells each
    size_t m_width = 0;
    qsizetype m_count = 0;
    qsizetype m_current = -1;
};
