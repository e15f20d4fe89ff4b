#include "books/FieldDef.h"

#include "books/CharacterCount.h"
#include "money/Currency.h"
#include "money/DayNumber.h"

#include <QDateTime>
#include <QRegularExpression>

#include <cmath>
#include <optional>

namespace {

QString quoted(const QString &name)
{
    return u'"' + name + u'"';
}

QString rangeCheck(const QString &column, qint64 low, qint64 high)
{
    return QStringLiteral(" CHECK(%1 BETWEEN %2 AND %3)").arg(column).arg(low).arg(high);
}

QString integerCheck(const QString &column)
{
    return QStringLiteral(" CHECK(typeof(%1) IN ('integer','null'))").arg(column);
}

// Whole numbers as the engine converts them: halves to even.
bool toWholeNumber(const QVariant &value, qint64 *number)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        *number = value.toBool() ? -1 : 0;
        return true;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::UChar:
    case QMetaType::SChar:
        *number = value.toLongLong();
        return true;
    default:
        break;
    }
    if (value.userType() == qMetaTypeId<Currency>()) {
        *number = roundHalfEven(value.value<Currency>().raw(), Currency::Scale) / Currency::Scale;
        return true;
    }
    bool ok = false;
    const double d
        = value.typeId() == QMetaType::QString ? value.toString().trimmed().toDouble(&ok) : value.toDouble(&ok);
    if (!ok || !std::isfinite(d) || std::fabs(d) > 9e18)
        return false;
    *number = qint64(std::nearbyint(d));
    return true;
}

bool toCurrency(const QVariant &value, Currency *amount)
{
    bool ok = true;
    if (value.userType() == qMetaTypeId<Currency>())
        *amount = value.value<Currency>();
    else if (value.typeId() == QMetaType::QString)
        *amount = Currency::fromString(value.toString(), &ok);
    else if (value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float)
        *amount = Currency::fromDouble(value.toDouble(), &ok);
    else {
        qint64 units = 0;
        ok = toWholeNumber(value, &units);
        *amount = Currency::fromUnits(units);
    }
    return ok;
}

// A day number, or Null (`day` empty) for a date that is not one: no date is stored then.
bool toDayNumber(const QVariant &value, std::optional<qint64> *day)
{
    QDate date;
    if (value.typeId() == QMetaType::QDate)
        date = value.toDate();
    else if (value.typeId() == QMetaType::QDateTime)
        date = value.toDateTime().date();
    else if (value.typeId() == QMetaType::QString)
        date = QDate::fromString(value.toString().trimmed(), QStringLiteral("dd.MM.yyyy"));
    else {
        qint64 number = 0;
        if (!toWholeNumber(value, &number))
            return false;
        *day = number;
        return true;
    }
    *day = date.isValid() ? std::optional<qint64>(DayNumber(date)) : std::nullopt;
    return true;
}

} // namespace

QString FieldDef::columnDeclaration() const
{
    const QString column = quoted(name);
    QString declaration = column + u' ';
    switch (type) {
    case FieldType::Boolean:
        declaration += QStringLiteral("BOOLEAN") + integerCheck(column);
        break;
    case FieldType::Byte:
        declaration += QStringLiteral("TINYINT") + rangeCheck(column, 0, 255);
        break;
    case FieldType::Integer:
        declaration += QStringLiteral("SMALLINT") + rangeCheck(column, -32768, 32767);
        break;
    case FieldType::Long:
        if (autoNumber)
            return declaration + QStringLiteral("INTEGER PRIMARY KEY AUTOINCREMENT");
        declaration += QStringLiteral("INT") + rangeCheck(column, -2147483648LL, 2147483647LL);
        break;
    case FieldType::Currency:
        declaration += QStringLiteral("CURRENCY") + integerCheck(column);
        break;
    case FieldType::Single:
        declaration += QStringLiteral("FLOAT");
        break;
    case FieldType::Double:
        declaration += QStringLiteral("DOUBLE");
        break;
    case FieldType::Date:
        declaration += QStringLiteral("DATE") + integerCheck(column);
        break;
    case FieldType::Binary:
    case FieldType::LongBinary:
        declaration += QStringLiteral("BLOB");
        break;
    case FieldType::Text:
        declaration += QStringLiteral("TEXT(%1) CHECK(length(%2) <= %1)").arg(size).arg(column);
        break;
    case FieldType::Memo:
        declaration += QStringLiteral("LONGTEXT");
        break;
    }
    if (isText() && !allowZeroLength)
        declaration += QStringLiteral(" CHECK(length(%1) > 0)").arg(column);
    if (required)
        declaration += QStringLiteral(" NOT NULL");
    return declaration;
}

FieldDef FieldDef::fromDeclaredType(const QString &name, const QString &declaredType, bool notNull)
{
    FieldDef field;
    field.name = name;
    field.required = notNull;
    field.untyped = declaredType.isEmpty();
    const QString upper = declaredType.toUpper();
    static const QRegularExpression textSize(QStringLiteral("^TEXT\\((\\d+)\\)"));
    const QRegularExpressionMatch match = textSize.match(upper);
    if (match.hasMatch()) {
        field.type = FieldType::Text;
        field.size = match.captured(1).toInt();
    } else if (upper == u"BOOLEAN") {
        field.type = FieldType::Boolean;
    } else if (upper == u"TINYINT") {
        field.type = FieldType::Byte;
    } else if (upper == u"SMALLINT") {
        field.type = FieldType::Integer;
    } else if (upper == u"INT") {
        field.type = FieldType::Long;
    } else if (upper == u"INTEGER") {
        field.type = FieldType::Long;
        field.autoNumber = true;
    } else if (upper == u"CURRENCY") {
        field.type = FieldType::Currency;
    } else if (upper == u"FLOAT") {
        field.type = FieldType::Single;
    } else if (upper == u"DOUBLE") {
        field.type = FieldType::Double;
    } else if (upper == u"DATE") {
        field.type = FieldType::Date;
    } else if (upper == u"BLOB") {
        field.type = FieldType::LongBinary;
    } else {
        field.type = FieldType::Memo;
    }
    return field;
}

bool FieldDef::toStorage(const QVariant &value, QVariant *stored) const
{
    if (value.isNull()) {
        *stored = QVariant();
        return true;
    }
    switch (type) {
    case FieldType::Boolean: {
        qint64 number = 0;
        if (!toWholeNumber(value, &number))
            return false;
        *stored = qint64(number != 0 ? -1 : 0);
        return true;
    }
    case FieldType::Byte:
    case FieldType::Integer:
    case FieldType::Long: {
        qint64 number = 0;
        if (!toWholeNumber(value, &number))
            return false;
        *stored = number;
        return true;
    }
    case FieldType::Currency: {
        Currency amount;
        if (!toCurrency(value, &amount) || !amount.isValid())
            return false;
        *stored = amount.raw();
        return true;
    }
    case FieldType::Single:
    case FieldType::Double: {
        bool ok = true;
        const double number
            = value.userType() == qMetaTypeId<Currency>() ? value.value<Currency>().toDouble() : value.toDouble(&ok);
        if (!ok)
            return false;
        *stored = type == FieldType::Single ? double(float(number)) : number;
        return true;
    }
    case FieldType::Date: {
        std::optional<qint64> day;
        if (!toDayNumber(value, &day))
            return false;
        *stored = day ? QVariant(*day) : QVariant();
        return true;
    }
    case FieldType::Binary:
    case FieldType::LongBinary:
        *stored = value.toByteArray();
        return true;
    case FieldType::Text:
    case FieldType::Memo: {
        // Every character counts towards the size, and a NUL would hide what follows it.
        const QString text
            = value.userType() == qMetaTypeId<Currency>() ? value.value<Currency>().toString() : value.toString();
        if (text.contains(QChar(0)) || (type == FieldType::Text && CharacterCount(text) > size))
            return false;
        *stored = text;
        return true;
    }
    }
    return false;
}

QVariant FieldDef::fromStorage(const QVariant &stored) const
{
    if (stored.isNull() || untyped)
        return stored;
    switch (type) {
    case FieldType::Boolean:
    case FieldType::Byte:
    case FieldType::Integer:
    case FieldType::Long:
    case FieldType::Currency:
    case FieldType::Date:
        return fromInteger(stored.toLongLong());
    case FieldType::Single:
        return float(stored.toDouble());
    case FieldType::Double:
        return stored.toDouble();
    case FieldType::Binary:
    case FieldType::LongBinary:
        return stored.toByteArray();
    case FieldType::Text:
    case FieldType::Memo:
        return stored.toString();
    }
    return stored;
}

QVariant FieldDef::fromInteger(qint64 stored) const
{
    switch (type) {
    case FieldType::Boolean:
        return stored != 0;
    case FieldType::Byte:
    case FieldType::Integer:
    case FieldType::Long:
        return int(stored);
    case FieldType::Currency:
        return QVariant::fromValue(Currency::fromRaw(stored));
    case FieldType::Date:
        return DateFromDayNumber(stored);
    default:
        return QVariant();
    }
}

QVariant FieldDef::nullReplacement() const
{
    if (untyped)
        return 0; // a computed column is numeric: a sum over no rows reads 0
    switch (type) {
    case FieldType::Text:
    case FieldType::Memo:
    case FieldType::Date:
        return QString();
    case FieldType::Binary:
    case FieldType::LongBinary:
        return QVariant();
    case FieldType::Currency:
        return QVariant::fromValue(Currency());
    case FieldType::Single:
        return 0.0f;
    case FieldType::Double:
        return 0.0;
    case FieldType::Boolean:
        return false;
    default:
        return 0;
    }
}
