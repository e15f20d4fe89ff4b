#include "books/AccessLayer.h"

#include "books/Backups.h"
#include "books/ForwardCursor.h"
#include "books/Message.h"
#include "books/QueryCursor.h"
#include "books/Statement.h"
#include "books/TableCursor.h"

#include <sqlite3.h>

bool DbOpen(std::unique_ptr<Database> &db, const QString &path)
{
    db = Database::open(path);
    return db != nullptr;
}

bool DbCreate(std::unique_ptr<Database> &db, const QString &path)
{
    db = Database::create(path);
    return db != nullptr;
}

bool RsOpen(Database &db, std::unique_ptr<Recordset> &rs, const QString &table)
{
    std::unique_ptr<TableCursor> cursor = TableCursor::open(db, table);
    if (!cursor)
        return false;
    rs = std::move(cursor);
    return true;
}

qint64 RsCount(Recordset &rs)
{
    return rs.count();
}

bool RsFirst(Recordset &rs)
{
    return rs.moveFirst() && !rs.noMatch();
}

bool RsLast(Recordset &rs)
{
    return rs.moveLast() && !rs.noMatch();
}

bool RsPrev(Recordset &rs)
{
    if (rs.bof())
        return false;
    rs.movePrevious(); // a refused move changes nothing; the flag below still answers
    return !rs.bof();
}

bool RsNext(Recordset &rs)
{
    if (rs.eof())
        return false;
    rs.moveNext();
    return !rs.eof();
}

bool RsSeek(Recordset &rs, const QString &indexName, const QVariant &key)
{
    return rs.seek(indexName, key);
}

bool RsEdit(Recordset &rs)
{
    return rs.edit();
}

bool RsAddNew(Recordset &rs)
{
    return rs.addNew();
}

bool RsUpdate(Recordset &rs)
{
    Backups::beforeChange();
    return rs.update();
}

bool RsDelete(Recordset &rs)
{
    Backups::beforeChange();
    return rs.remove();
}

Currency AmountSumRead(const Recordset &rs, const QString &fieldName)
{
    return Currency::fromRaw(FieldRead(rs, fieldName).toLongLong());
}

qint64 LastAddedKey(Database &db)
{
    return sqlite3_last_insert_rowid(db.handle());
}

QVariant FieldRead(const Recordset &rs, const QString &fieldName)
{
    QVariant value;
    if (!rs.read(fieldName, &value))
        return QVariant(qint32(1));
    return value;
}

void FieldWrite(Recordset &rs, const QString &fieldName, const QVariant &value)
{
    rs.write(fieldName, value);
}

bool RsEof(const Recordset &rs)
{
    return rs.eof();
}

namespace {

// A query's cursor on its first row; without one, the query's message.
bool opened(std::unique_ptr<Recordset> cursor, std::unique_ptr<Recordset> &rs)
{
    if (!cursor) {
        Message::exclamation(QStringLiteral("Sql Rapor Yaratılamıyor"));
        return false;
    }
    rs = std::move(cursor);
    return RsFirst(*rs);
}

} // namespace

bool QueryOpen(Database &db, std::unique_ptr<Recordset> &rs, const QString &sql, const QVariantList &values)
{
    return opened(QueryCursor::open(db, sql, values), rs);
}

bool QueryWalk(Database &db, std::unique_ptr<Recordset> &rs, const QString &sql, const QVariantList &values)
{
    return opened(ForwardCursor::open(db, sql, values), rs);
}

bool SqlExecute(Database &db, const QString &sql, const QVariantList &values)
{
    Backups::beforeChange();
    Statement action(db.handle(), sql);
    return action.isValid() && action.bindAll(values) && action.execute();
}

bool TableCreate(Database &, std::unique_ptr<TableDef> &table, const QString &name)
{
    if (name.isEmpty())
        return false;
    table = std::make_unique<TableDef>(name);
    return true;
}

bool FieldCreate(
    TableDef &table, const QString &name, int typeCode, bool required, bool allowZeroLength, int attributes, int size)
{
    if (typeCode < int(FieldType::Boolean) || typeCode > int(FieldType::Memo))
        return false;
    FieldDef field;
    field.name = name;
    field.type = FieldType(typeCode);
    field.required = required;
    field.allowZeroLength = allowZeroLength || !field.isText();
    field.size = field.type == FieldType::Text ? size : 0;
    field.autoNumber = field.type == FieldType::Long && attributes == AutoIncrementField;
    if (field.type == FieldType::Binary)
        field.type = FieldType::LongBinary;
    return table.addField(field);
}

bool IndexCreate(TableDef &table, const QString &name, const QString &fields, bool unique, bool primary,
    bool /*ignoreNulls: Null keys are simply kept in the index*/, bool required)
{
    return table.addIndex(name, fields.split(u';', Qt::SkipEmptyParts), unique || primary, required || primary);
}

bool TableAppend(Database &db, TableDef &table)
{
    if (!db.run(QStringLiteral("BEGIN")))
        return false;
    for (const QString &sql : table.creationSql()) {
        if (!db.run(sql)) {
            db.run(QStringLiteral("ROLLBACK"));
            return false;
        }
    }
    return db.run(QStringLiteral("COMMIT"));
}
