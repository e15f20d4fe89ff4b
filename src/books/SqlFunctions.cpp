#include "books/SqlFunctions.h"

#include "books/TurkishText.h"
#include "money/Currency.h"
#include "money/DayNumber.h"

#include <QCollator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>
#include <QStringDecoder>
#include <QVarLengthArray>

#include <sqlite3.h>

#include <cstring>

namespace {

const QCollator &turkishCollator()
{
    static const QCollator collator = [] {
        QCollator c(QLocale(QLocale::Turkish, QLocale::Turkey));
        c.setCaseSensitivity(Qt::CaseInsensitive);
        return c;
    }();
    return collator;
}

int compareTurkish(void *, int length1, const void *text1, int length2, const void *text2)
{
    if (length1 == length2 && std::memcmp(text1, text2, size_t(length1)) == 0)
        return 0;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QVarLengthArray<QChar, 256> a(length1 + 1);
    QVarLengthArray<QChar, 256> b(length2 + 1);
    const QChar *endA = decoder.appendToBuffer(a.data(), QByteArrayView(static_cast<const char *>(text1), length1));
    const QChar *endB = decoder.appendToBuffer(b.data(), QByteArrayView(static_cast<const char *>(text2), length2));
    return turkishCollator().compare(QStringView(a.data(), endA), QStringView(b.data(), endB));
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
    sqlite3_result_int(context, turkishCollator().compare(QStringView(text).left(prefix.size()), prefix) == 0);
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
        && sqlite3_create_function_v2(db, "amountsum", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, nullptr,
               amountSumStep, amountSumFinal, nullptr)
        == SQLITE_OK;
}
