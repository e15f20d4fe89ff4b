#include "books/Statement.h"

#include <sqlite3.h>

Statement::Statement(sqlite3 *db, const QString &sql)
{
    const QByteArray text = sql.toUtf8();
    if (sqlite3_prepare_v3(db, text.constData(), int(text.size()), SQLITE_PREPARE_PERSISTENT, &m_stmt, nullptr)
        != SQLITE_OK) {
        sqlite3_finalize(m_stmt);
        m_stmt = nullptr;
    }
}

Statement::~Statement()
{
    sqlite3_finalize(m_stmt);
}

bool Statement::bindAll(const QVariantList &values)
{
    for (int i = 0; i < values.size(); ++i)
        if (!bind(i + 1, values[i]))
            return false;
    return true;
}

bool Statement::bind(int index, const QVariant &value)
{
    int rc = SQLITE_OK;
    switch (value.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
        rc = sqlite3_bind_null(m_stmt, index);
        break;
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        rc = sqlite3_bind_int64(m_stmt, index, value.toLongLong());
        break;
    case QMetaType::Double:
    case QMetaType::Float:
        rc = sqlite3_bind_double(m_stmt, index, value.toDouble());
        break;
    case QMetaType::QByteArray: {
        const QByteArray bytes = value.toByteArray();
        rc = sqlite3_bind_blob64(m_stmt, index, bytes.constData(), sqlite3_uint64(bytes.size()), SQLITE_TRANSIENT);
        break;
    }
    default: {
        const QByteArray text = value.toString().toUtf8();
        rc = sqlite3_bind_text64(
            m_stmt, index, text.constData(), sqlite3_uint64(text.size()), SQLITE_TRANSIENT, SQLITE_UTF8);
        break;
    }
    }
    return rc == SQLITE_OK;
}

bool Statement::next()
{
    const int rc = sqlite3_step(m_stmt);
    m_done = rc == SQLITE_DONE;
    return rc == SQLITE_ROW;
}

bool Statement::execute()
{
    while (next()) { }
    const bool ok = m_done;
    reset();
    return ok;
}

void Statement::reset()
{
    sqlite3_reset(m_stmt);
    sqlite3_clear_bindings(m_stmt);
    m_done = false;
}

int Statement::columnCount() const
{
    return sqlite3_column_count(m_stmt);
}

QVariant Statement::column(int index) const
{
    switch (columnKind(index)) {
    case Kind::Integer:
        return columnInteger(index);
    case Kind::Real:
        return sqlite3_column_double(m_stmt, index);
    case Kind::Text:
        return columnText(index);
    case Kind::Blob: {
        const auto *data = static_cast<const char *>(sqlite3_column_blob(m_stmt, index));
        return QByteArray(data, sqlite3_column_bytes(m_stmt, index));
    }
    case Kind::Null:
        break;
    }
    return QVariant();
}

Statement::Kind Statement::columnKind(int index) const
{
    switch (sqlite3_column_type(m_stmt, index)) {
    case SQLITE_INTEGER:
        return Kind::Integer;
    case SQLITE_FLOAT:
        return Kind::Real;
    case SQLITE_TEXT:
        return Kind::Text;
    case SQLITE_BLOB:
        return Kind::Blob;
    default:
        return Kind::Null;
    }
}

qint64 Statement::columnInteger(int index) const
{
    return sqlite3_column_int64(m_stmt, index);
}

QString Statement::columnText(int index) const
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(m_stmt, index));
    return QString::fromUtf8(text, sqlite3_column_bytes(m_stmt, index));
}

QString Statement::columnName(int index) const
{
    return QString::fromUtf8(sqlite3_column_name(m_stmt, index));
}

QString Statement::declaredType(int index) const
{
    return QString::fromUtf8(sqlite3_column_decltype(m_stmt, index));
}
