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
    std::vector<FieldDef> fields;
    for (int i = 0; i < columns; ++i)
        fields.push_back(FieldDef::fromDeclaredType(query.columnName(i), query.declaredType(i), false));
    cursor->setFields(std::move(fields));
    while (query.next()) {
        std::vector<QVariant> row(static_cast<size_t>(columns));
        for (int i = 0; i < columns; ++i)
            row[size_t(i)] = query.column(i);
        cursor->m_rows.push_back(std::move(row));
    }
    if (!query.done())
        return nullptr;
    cursor->moveFirst();
    return cursor;
}

bool QueryCursor::moveTo(qsizetype row)
{
    m_current = qBound(qsizetype(-1), row, qsizetype(m_rows.size()));
    m_bof = m_current < 0 || m_rows.empty();
    m_eof = m_current >= qsizetype(m_rows.size()) || m_rows.empty();
    return true;
}

bool QueryCursor::moveFirst()
{
    return !m_rows.empty() && moveTo(0);
}

bool QueryCursor::moveLast()
{
    return !m_rows.empty() && moveTo(qsizetype(m_rows.size()) - 1);
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
    if (m_current < 0 || m_current >= qsizetype(m_rows.size()))
        return false;
    *stored = m_rows[size_t(m_current)][size_t(fieldIndex)];
    return true;
}
