#include "books/SqlFunctions.h"

#include "books/TurkishText.h"
#include "money/Currency.h"
#include "money/DayNumber.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QVarLengthArray>

#include <sqlite3.h>
#include <unicode/ucol.h>

#include <cstring>

namespace {

// The Turkish order: the Turkish locale's collation, normalized, with case folded (secondary
// strength: "ışık" and "IŞIK" are one, "c" and "ç" are not), as Qt's case-insensitive collator
// for the locale orders. Comparing UTF-8 directly spares a conversion per comparison.
const UCollator *turkishCollator()
{
    static UCollator *const collator = [] {
        UErrorCode status = U_ZERO_ERROR;
        UCollator *opened = ucol_open("tr_TR", &status);
        ucol_setAttribute(opened, UCOL_NORMALIZATION_MODE, UCOL_ON, &status);
        ucol_setAttribute(opened, UCOL_STRENGTH, UCOL_SECONDARY, &status);
        return opened;
    }();
    return collator;
}

const UChar *utf16(QStringView text)
{
    static_assert(sizeof(UChar) == sizeof(QChar));
    return reinterpret_cast<const UChar *>(text.utf16());
}

int compareTurkish(void *, int length1, const void *text1, int length2, const void *text2)
{
    if (length1 == length2 && std::memcmp(text1, text2, size_t(length1)) == 0)
        return 0;
    UErrorCode status = U_ZERO_ERROR;
    return ucol_strcollUTF8(turkishCollator(), static_cast<const char *>(text1), length1,
        static_cast<const char *>(text2), length2, &status);
}

enum class DatePart { Year, Month };

// year(day number) and month(day number); Null for anything but a number.
void partOfDayNumber(sqlite3_context *context, int, sqlite3_value **arguments)
{
    const int type = sqlite3_value_numeric_type(arguments[0]);
    if (type != SQLITE_INTEGER && type != SQLITE_FLOAT) {
        sqlite3_result_null(context);
        return;
    }
    const QDate date = DateFromDayNumber(sqlite3_value_int64(arguments[0]));
    const auto part = *static_cast<const DatePart *>(sqlite3_user_data(context));
    sqlite3_result_int(context, part == DatePart::Year ? date.year() : date.month());
}

QString textArgument(sqlite3_value *value)
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(value));
    return text ? QString::fromUtf8(text, sqlite3_value_bytes(value)) : QString();
}

// startsWith(text, prefix): 1 when text begins with prefix in the Turkish sense (case folded
// the Turkish way), else 0. The prefix is taken literally: no character is a wildcard.
void startsWithTurkish(sqlite3_context *context, int, sqlite3_value **arguments)
{
    const QString text = textArgument(arguments[0]);
    const QString prefix = textArgument(arguments[1]);
    const QStringView start = QStringView(text).left(prefix.size());
    sqlite3_result_int(context,
        ucol_strcoll(turkishCollator(), utf16(start), int32_t(start.size()), utf16(prefix), int32_t(prefix.size()))
            == UCOL_EQUAL);
}

// turkishkey(text): the text's key in the Turkish order, a BLOB: keys compared byte by byte
// order their texts as COLLATE TR does, and the case spellings of one text have one key. A
// sort by the key compares bytes instead of asking the collation at every step. Null for Null.
void turkishKey(sqlite3_context *context, int, sqlite3_value **arguments)
{
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL) {
        sqlite3_result_null(context);
        return;
    }
    const QString text = textArgument(arguments[0]);
    QVarLengthArray<uint8_t, 256> key(256);
    int32_t size
        = ucol_getSortKey(turkishCollator(), utf16(text), int32_t(text.size()), key.data(), int32_t(key.size()));
    if (size > key.size()) {
        key.resize(size);
        size = ucol_getSortKey(turkishCollator(), utf16(text), int32_t(text.size()), key.data(), size);
    }
    // The key ends with a zero byte, which orders nothing.
    sqlite3_result_blob(context, key.data(), qMax(0, size - 1), SQLITE_TRANSIENT);
}

// spellings(text): the JSON array of the text's case spellings (CaseSpellings), for
// "kod IN (SELECT value FROM json_each(spellings(…)))"; Null for Null.
void caseSpellings(sqlite3_context *context, int, sqlite3_value **arguments)
{
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL) {
        sqlite3_result_null(context);
        return;
    }
    const QStringList spellings = CaseSpellings(textArgument(arguments[0]));
    const QByteArray json = QJsonDocument(QJsonArray::fromStringList(spellings)).toJson(QJsonDocument::Compact);
    sqlite3_result_text(context, json.constData(), int(json.size()), SQLITE_TRANSIENT);
}

// amountsum(amount): the sum of the amounts (ten-thousandths) that are not Null, Null when there
// are none; a sum that a Currency cannot hold, or that meets the overflow mark, is the overflow
// mark (the engine's sum() would stop the whole query with an error).
struct AmountSum
{
    sqlite3_int64 total;
    bool any;
    bool overflow;
};

void amountSumStep(sqlite3_context *context, int, sqlite3_value **arguments)
{
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL)
        return;
    auto *sum = static_cast<AmountSum *>(sqlite3_aggregate_context(context, sizeof(AmountSum)));
    if (!sum) {
        sqlite3_result_error_nomem(context);
        return;
    }
    sum->any = true;
    const sqlite3_int64 value = sqlite3_value_int64(arguments[0]);
    if (value == Currency::overflow().raw() || __builtin_add_overflow(sum->total, value, &sum->total))
        sum->overflow = true;
}

void amountSumFinal(sqlite3_context *context)
{
    const auto *sum = static_cast<AmountSum *>(sqlite3_aggregate_context(context, 0));
    if (!sum || !sum->any)
        sqlite3_result_null(context);
    else
        sqlite3_result_int64(context, sum->overflow ? Currency::overflow().raw() : sum->total);
}

// A deterministic function; `data` is what sqlite3_user_data gives it.
bool addFunction(sqlite3 *db, const char *name, int arguments,
    void (*function)(sqlite3_context *, int, sqlite3_value **), const void *data = nullptr)
{
    return sqlite3_create_function_v2(db, name, arguments, SQLITE_UTF8 | SQLITE_DETERMINISTIC, const_cast<void *>(data),
               function, nullptr, nullptr, nullptr)
        == SQLITE_OK;
}

} // namespace

bool registerSqlFunctions(sqlite3 *db)
{
    static const DatePart year = DatePart::Year;
    static const DatePart month = DatePart::Month;
    return sqlite3_create_collation_v2(db, "TR", SQLITE_UTF8, nullptr, compareTurkish, nullptr) == SQLITE_OK
        && addFunction(db, "year", 1, partOfDayNumber, &year) && addFunction(db, "month", 1, partOfDayNumber, &month)
        && addFunction(db, "startsWith", 2, startsWithTurkish) && addFunction(db, "spellings", 1, caseSpellings)
        && addFunction(db, "turkishkey", 1, turkishKey)
        && sqlite3_create_function_v2(db, "amountsum", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, nullptr,
               amountSumStep, amountSumFinal, nullptr)
        == SQLITE_OK;
}
