#pragma once

#include "books/Recordset.h"

#include <QStringList>

#include <map>
#include <memory>

class Database;
class Statement;

// A cursor on one table that never loads it: every move and seek is one look-up relative to
// the key of the current position, in the order of the selected index (by row number while
// none is selected).
class TableCursor : public Recordset
{
public:
    // nullptr when the table does not exist.
    static std::unique_ptr<TableCursor> open(Database &db, const QString &table);
    ~TableCursor() override;

    bool moveFirst() override;
    bool moveLast() override;
    bool moveNext() override;
    bool movePrevious() override;
    qint64 count() override;

    bool seek(const QString &indexName, const QVariant &key) override;
    bool edit() override;
    bool addNew() override;
    bool update() override;
    bool remove() override;
    bool write(const QString &fieldName, const QVariant &value) override;

protected:
    bool currentStored(int fieldIndex, QVariant *stored) const override;

private:
    enum class Pending { None, Edit, AddNew };
    enum class Direction { Forward, Backward };

    TableCursor(Database &db, const QString &table);
    bool loadSchema();
    Statement *statement(const QString &sql);
    // The columns as ORDER BY terms. A text key (a unique index of one text column: cards,
    // parameters) is walked in Turkish order, which the engine finds without its index (a scan of
    // a small table); the lookup indexes of the large tables are walked in the order of their
    // stored bytes, through the index.
    QString orderTerms(const QStringList &columns, const QString &suffix = QString()) const;
    // "c > ?1" for one column, "(c1, c2) > (?1, ?2)" for more, in the order of orderTerms.
    QString comparison(const QStringList &columns, const QString &op) const;
    QString selectSql(const QString &where, Direction direction) const;
    bool keyTakenElsewhere();
    // Runs a positioning query; on a row the cursor stands on it. False on an engine error.
    bool position(const QString &sql, const QVariantList &values, bool *found);
    // To the first (Forward) or last (Backward) record in index order.
    bool moveToEnd(Direction direction);
    bool step(Direction direction);
    bool fetchRow(qint64 rowid);
    bool insertPending();
    bool updatePending();

    Database &m_db;
    QString m_table;
    QString m_columns; // the select list: row number, then every field
    std::map<QString, QStringList> m_indexes; // index name (lower case) -> its columns
    QStringList m_uniqueTexts; // text columns that a unique index of their own keys
    bool m_turkishOrder = false; // the selected index is one of those keys
    QStringList m_order; // columns that order the cursor, ending in a unique one
    QVariantList m_key; // the position: values of a prefix of m_order
    bool m_onRecord = false;
    qint64 m_rowid = 0;
    std::vector<QVariant> m_row;
    Pending m_pending = Pending::None;
    std::map<int, QVariant> m_pendingValues;
    bool m_refused = false; // a value of the pending row could not be stored as given
    std::map<QString, std::unique_ptr<Statement>> m_statements;
};
