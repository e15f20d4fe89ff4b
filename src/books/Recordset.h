#pragma once

#include "books/FieldDef.h"

#include <QHash>
#include <QString>
#include <QVariant>

#include <vector>

// A cursor over rows: a table cursor (RsOpen) or a query result (QueryOpen). The access-layer
// functions give these primitives their documented meaning; nothing here raises.
class Recordset
{
public:
    virtual ~Recordset() = default;

    // Moves report false when the engine refuses them (no current record, an empty cursor).
    virtual bool moveFirst() = 0;
    virtual bool moveLast() = 0;
    virtual bool moveNext() = 0;
    virtual bool movePrevious() = 0;
    virtual qint64 count() = 0; // -1 when the engine fails

    virtual bool seek(const QString &indexName, const QVariant &key) = 0;
    virtual bool edit() = 0;
    virtual bool addNew() = 0;
    virtual bool update() = 0;
    virtual bool remove() = 0;
    virtual bool write(const QString &fieldName, const QVariant &value) = 0;

    // The current value with Null replaced for the field's type; false when there is no current
    // record or no such field.
    bool read(const QString &fieldName, QVariant *value) const;

    bool bof() const { return m_bof; }
    bool eof() const { return m_eof; }
    bool noMatch() const { return m_noMatch; }

protected:
    void setFields(std::vector<FieldDef> fields);
    int fieldIndex(const QString &name) const; // -1 when unknown
    const FieldDef &field(int index) const { return m_fields[size_t(index)]; }
    int fieldCount() const { return int(m_fields.size()); }
    // The stored value of a field of the current (or pending) record; false without one.
    virtual bool currentStored(int fieldIndex, QVariant *stored) const = 0;
    // What read() answers for it: the stored value with Null replaced for the field's type. A
    // cursor that can take the common values more directly from where they are kept overrides it.
    virtual bool currentValue(int fieldIndex, QVariant *value) const;

    bool m_bof = true;
    bool m_eof = true;
    bool m_noMatch = false;

private:
    std::vector<FieldDef> m_fields;
    QHash<QString, int> m_byName;
};
