#include "books/TableDef.h"

TableDef::TableDef(const QString &name)
    : m_name(name)
{
}

FieldDef *TableDef::findField(const QString &name)
{
    for (FieldDef &field : m_fields)
        if (field.name.compare(name, Qt::CaseInsensitive) == 0)
            return &field;
    return nullptr;
}

bool TableDef::addField(const FieldDef &field)
{
    if (field.name.isEmpty() || findField(field.name))
        return false;
    if (field.autoNumber)
        for (const FieldDef &other : m_fields)
            if (other.autoNumber)
                return false;
    m_fields.push_back(field);
    return true;
}

bool TableDef::addIndex(const QString &name, const QStringList &columns, bool unique, bool required)
{
    if (name.isEmpty() || columns.isEmpty())
        return false;
    for (const QString &column : columns)
        if (!findField(column))
            return false;
    if (required)
        for (const QString &column : columns)
            findField(column)->required = true;
    // An index on the auto-number alone is the table's row order itself.
    if (columns.size() == 1 && findField(columns.first())->autoNumber)
        return true;
    m_indexes.push_back(Index { name, columns, unique });
    return true;
}

QStringList TableDef::creationSql() const
{
    QStringList columns;
    for (const FieldDef &field : m_fields)
        columns << field.columnDeclaration();
    QStringList sql { QStringLiteral("CREATE TABLE \"%1\" (%2)").arg(m_name, columns.join(QStringLiteral(", "))) };
    for (const Index &index : m_indexes) {
        QStringList quotedColumns;
        for (const QString &column : index.columns)
            quotedColumns << u'"' + column + u'"';
        sql << QStringLiteral("CREATE %1INDEX \"%2_%3\" ON \"%2\" (%4)")
                   .arg(index.unique ? QStringLiteral("UNIQUE ") : QString(), m_name, index.name,
                       quotedColumns.join(QStringLiteral(", ")));
    }
    return sql;
}
