#include "books/QueryCursor.h"

#include "books/Database.h"
#include "books/Statement.h"

std::unique_ptr<QueryCursor> QueryCursor::open(Database &db, const QString &sql, const QVariantList &values)
{
    Statement query(db.handle(), sql);
    if (!query.isValid() || !query.bindAll(values))
        return nullptr;
    std::unique_ptr<QueryCursor> cursor(new QueryCursor);
    const int columns = query.columnCount();
    cursor->takeColumnsOf(query);
    cursor->m_width = size_t(columns);
    while (query.next()) {
        for (int i = 0; i < columns; ++i)
            cursor->m_cells.push_back(query.column(i));
        ++cursor->m_count;
    }
    if (!query.done())
        return nullptr;
    cursor->moveFirst();
    return cursor;
}

bool QueryCursor::moveTo(qsizetype row)
{
    m_current = qBound(qsizetype(-1), row, m_count);
    m_bof = m_current < 0 || m_count == 0;
    m_eof = m_current >= m_count || m_count == 0;
    return true;
}

bool QueryCursor::moveFirst()
{
    return m_count > 0 && moveTo(0);
}

bool QueryCursor::moveLast()
{
    return m_count > 0 && moveTo(m_count - 1);
}

bool QueryCursor::moveNext()
{
    return !m_eof && moveTo(m_current + 1);
}

bool QueryCursor::movePrevious()
{
    return !m_bof && moveTo(m_current - 1);
}

bool QueryCursor::currentStored(int fieldIndex, QVariant *stored) const
{
    if (m_current < 0 || m_current >= m_count)
        return false;
    *stored = m_cells[size_t(m_current) * m_width + size_t(fieldIndex)];
    return true;
}
