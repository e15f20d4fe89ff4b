#pragma once

#include "books/FieldDef.h"

#include <QStringList>

#include <vector>

// A table being defined: fields and indexes are added, then TableAppend creates it.
class TableDef
{
public:
    explicit TableDef(const QString &name);

    QString name() const { return m_name; }
    // False when the name is taken or a second auto-number is asked for.
    bool addField(const FieldDef &field);
    // False when a column is not a field of the table.
    bool addIndex(const QString &name, const QStringList &columns, bool unique, bool required);
    // The statements that create the table and its indexes.
    QStringList creationSql() const;

private:
    struct Index
    {
        QString name;
        QStringList columns;
        bool unique = false;
    };
    FieldDef *findField(const QString &name);

    QString m_name;
    std::vector<FieldDef> m_fields;
    std::vector<Index> m_indexes;
};
