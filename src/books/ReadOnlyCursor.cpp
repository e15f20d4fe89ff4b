#include "books/ReadOnlyCursor.h"

#include "books/Statement.h"

void ReadOnlyCursor::takeColumnsOf(const Statement &query)
{
    std::vector<FieldDef> fields;
    for (int i = 0; i < query.columnCount(); ++i)
        fields.push_back(FieldDef::fromDeclaredType(query.columnName(i), query.declaredType(i), false));
    setFields(std::move(fields));
}
