#include "books/ForwardCursor.h"

#include "books/Database.h"
#include "books/Message.h"
#include "books/Statement.h"

ForwardCursor::ForwardCursor(std::unique_ptr<Statement> query)
    : m_query(std::move(query))
{
}

ForwardCursor::~ForwardCursor() = default;

std::unique_ptr<ForwardCursor> ForwardCursor::open(Database &db, const QString &sql, const QVariantList &values)
{
    auto query = std::make_unique<Statement>(db.handle(), sql);
    if (!query->isValid() || !query->bindAll(values))
        return nullptr;
    const bool first = query->next();
    if (!first && !query->done())
        return nullptr;
    std::unique_ptr<ForwardCursor> cursor(new ForwardCursor(std::move(query)));
    cursor->takeColumnsOf(*cursor->m_query);
    cursor->m_bof = cursor->m_eof = !first;
    return cursor;
}

bool ForwardCursor::moveNext()
{
    if (m_eof)
        return false;
    m_moved = true;
    m_bof = false;
    m_eof = !m_query->next();
    if (m_eof && !m_query->done())
        Message::exclamation(QStringLiteral("Sql Rapor Yaratılamıyor"));
    return true;
}

// A listing reads every field of thousands of rows: integers and texts go from the engine's
// column to the field's value without the stored value in between.
bool ForwardCursor::currentValue(int fieldIndex, QVariant *value) const
{
    if (m_eof)
        return false;
    const FieldDef &def = field(fieldIndex);
    const Statement::Kind kind = m_query->columnKind(fieldIndex);
    if (kind == Statement::Kind::Integer) {
        QVariant typed = def.fromInteger(m_query->columnInteger(fieldIndex));
        if (typed.isValid()) {
            *value = std::move(typed);
            return true;
        }
    } else if (kind == Statement::Kind::Text && (def.type == FieldType::Text || def.type == FieldType::Memo)) {
        *value = m_query->columnText(fieldIndex);
        return true;
    }
    return ReadOnlyCursor::currentValue(fieldIndex, value);
}

bool ForwardCursor::currentStored(int fieldIndex, QVariant *stored) const
{
    if (m_eof)
        return false;
    *stored = m_query->column(fieldIndex);
    return true;
}
