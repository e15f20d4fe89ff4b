#pragma once

#include <QString>
#include <QVariant>

// The engine's field type codes, as the schema routines take them.
enum class FieldType {
    Boolean = 1,
    Byte = 2,
    Integer = 3,
    Long = 4,
    Currency = 5,
    Single = 6,
    Double = 7,
    Date = 8,
    Binary = 9,
    Text = 10,
    LongBinary = 11,
    Memo = 12,
};

// One field of a table: its type and the rules its values obey.
struct FieldDef
{
    QString name;
    FieldType type = FieldType::Text;
    int size = 0; // characters of a Text field
    bool required = false;
    bool allowZeroLength = true;
    bool autoNumber = false;
    bool untyped = false; // a computed query column: values are read as the engine gives them

    // The column declaration that makes the engine keep these rules.
    QString columnDeclaration() const;
    // Reads a field back from the type the table was declared with.
    static FieldDef fromDeclaredType(const QString &name, const QString &declaredType, bool notNull);

    bool isText() const { return type == FieldType::Text || type == FieldType::Memo; }

    // Converts a value written by a screen to what the engine stores; false when it cannot.
    bool toStorage(const QVariant &value, QVariant *stored) const;
    // The value a screen reads for a stored one (an invalid QVariant for Null).
    QVariant fromStorage(const QVariant &stored) const;
    // The same for a stored integer, for the fields that keep one (numbers, amounts, dates); an
    // invalid QVariant for the rest.
    QVariant fromInteger(qint64 stored) const;
    // What a read of Null gives: "" for Text and Date, Null for binary, 0 for the rest.
    QVariant nullReplacement() const;
};
