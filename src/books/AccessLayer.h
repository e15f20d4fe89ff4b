#pragma once

// The only way from the screens to the data file. Every operation traps the engine's errors
// and answers with its documented result; only QueryOpen shows a message of its own.
//
// SQL texts are SQLite's dialect with the program's additions (see SqlFunctions.h): the stored
// text compares as plain bytes, so a text compared in Turkish order says COLLATE TR, and an
// indexed account code is sought in all its spellings (TurkishText.h); dates as whole day numbers.
// A true comparison is 1, not -1. Values typed by the user are never spliced into SQL: they go
// in as the values of ?1, ?2 … placeholders.

#include "books/Database.h"
#include "books/FieldDef.h"
#include "books/Recordset.h"
#include "books/TableDef.h"
#include "money/Currency.h"

#include <QVariant>

#include <memory>

bool DbOpen(std::unique_ptr<Database> &db, const QString &path);
bool DbCreate(std::unique_ptr<Database> &db, const QString &path);

bool RsOpen(Database &db, std::unique_ptr<Recordset> &rs, const QString &table);
qint64 RsCount(Recordset &rs);
bool RsFirst(Recordset &rs);
bool RsLast(Recordset &rs);
bool RsPrev(Recordset &rs);
bool RsNext(Recordset &rs);
bool RsSeek(Recordset &rs, const QString &indexName, const QVariant &key);
bool RsEdit(Recordset &rs);
bool RsAddNew(Recordset &rs);
bool RsUpdate(Recordset &rs);
bool RsDelete(Recordset &rs);
// The current record's value, Null read as "" (Text, Date), Null (binary) or 0 (the rest);
// the Long value 1 when there is no current record or no such field.
QVariant FieldRead(const Recordset &rs, const QString &fieldName);
void FieldWrite(Recordset &rs, const QString &fieldName, const QVariant &value);
bool RsEof(const Recordset &rs);
// A query column that sums an amount field, as an amount (a Null sum is 0).
Currency AmountSumRead(const Recordset &rs, const QString &fieldName);
// The auto-number given to the row that the last successful RsUpdate after RsAddNew stored
// (the auto-number fields are the engine's row numbers).
qint64 LastAddedKey(Database &db);

// Opens the rows of a SELECT. False for no rows (silently) and for a statement the engine
// refuses (after "Sql Rapor Yaratılamıyor").
bool QueryOpen(Database &db, std::unique_ptr<Recordset> &rs, const QString &sql, const QVariantList &values = {});
// The same for a listing that walks the rows once, first to last: each row is read as the walk
// reaches it, the result is never held whole.
bool QueryWalk(Database &db, std::unique_ptr<Recordset> &rs, const QString &sql, const QVariantList &values = {});
bool SqlExecute(Database &db, const QString &sql, const QVariantList &values = {});

bool TableCreate(Database &db, std::unique_ptr<TableDef> &table, const QString &name);
bool FieldCreate(
    TableDef &table, const QString &name, int typeCode, bool required, bool allowZeroLength, int attributes, int size);
// fields: the index's field names separated by ";".
bool IndexCreate(TableDef &table, const QString &name, const QString &fields, bool unique, bool primary,
    bool ignoreNulls, bool required);
bool TableAppend(Database &db, TableDef &table);

// The engine's field attribute that makes a Long an auto-number.
constexpr int AutoIncrementField = 16;
