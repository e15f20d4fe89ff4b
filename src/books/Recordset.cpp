#include "books/Recordset.h"

void Recordset::setFields(std::vector<FieldDef> fields)
{
    m_fields = std::move(fields);
    m_byName.clear();
    for (int i = 0; i < fieldCount(); ++i)
        m_byName.insert(m_fields[size_t(i)].name.toLower(), i);
}

int Recordset::fieldIndex(const QString &name) const
{
    // Callers mostly spell field names in lower case already: no lower-cased copy for those.
    const auto found = m_byName.constFind(name);
    return found != m_byName.cend() ? found.value() : m_byName.value(name.toLower(), -1);
}

bool Recordset::read(const QString &fieldName, QVariant *value) const
{
    const int index = fieldIndex(fieldName);
    return index >= 0 && currentValue(index, value);
}

bool Recordset::currentValue(int index, QVariant *value) const
{
    QVariant stored;
    if (!currentStored(index, &stored))
        return false;
    *value = stored.isNull() ? field(index).nullReplacement() : field(index).fromStorage(stored);
    return true;
}
