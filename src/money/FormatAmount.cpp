#include "money/FormatAmount.h"

#include "money/AmountConventions.h"

namespace {

struct DecimalText
{
    bool negative = false;
    QString whole; // digits before the point
    QString fraction; // digits after it
};

// Reads like the classic Val(): blanks, an optional sign, digits, one point, digits; stops at
// anything else.
DecimalText readDecimal(const QString &text)
{
    DecimalText number;
    qsizetype i = 0;
    while (i < text.size() && text[i].isSpace())
        ++i;
    if (i < text.size() && (text[i] == u'-' || text[i] == u'+'))
        number.negative = text[i++] == u'-';
    bool inFraction = false;
    for (; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == u'.' && !inFraction)
            inFraction = true;
        else if (c >= u'0' && c <= u'9')
            (inFraction ? number.fraction : number.whole) += c;
        else
            break;
    }
    return number;
}

bool allZero(const QString &digits)
{
    for (QChar c : digits)
        if (c != u'0')
            return false;
    return true;
}

// Adds one to a string of decimal digits; returns the carry out of the leftmost digit.
bool incrementDigits(QString &digits)
{
    for (qsizetype i = digits.size() - 1; i >= 0; --i) {
        if (digits[i] != u'9') {
            digits[i] = QChar(digits[i].unicode() + 1);
            return false;
        }
        digits[i] = u'0';
    }
    return true;
}

// Rounds to the given decimals, halves away from zero, as the platform formatter does.
void roundTo(DecimalText &number, int decimals)
{
    const bool up = number.fraction.size() > decimals && number.fraction[decimals] >= u'5';
    number.fraction = number.fraction.left(decimals).leftJustified(decimals, u'0');
    if (up && incrementDigits(number.fraction) && incrementDigits(number.whole))
        number.whole.prepend(u'1');
}

QString grouped(const QString &digits, long groupSize, QChar separator)
{
    if (groupSize <= 0)
        return digits;
    QString result;
    for (qsizetype i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % groupSize == 0)
            result += separator;
        result += digits[i];
    }
    return result;
}

// The text of a number already rounded to its decimals.
QString composed(DecimalText number, int decimals, long groupSize)
{
    const AmountConventions &conventions = amountConventions();
    while (number.whole.size() > 1 && number.whole.startsWith(u'0'))
        number.whole.remove(0, 1);
    if (number.whole == u"0" && decimals > 0)
        number.whole.clear(); // no leading zero: .50
    if (number.whole.isEmpty() && decimals == 0)
        number.whole = QStringLiteral("0");

    QString text = grouped(number.whole, groupSize, conventions.thousandsSeparator);
    if (decimals > 0)
        text += conventions.decimalSeparator + number.fraction;
    const bool showsZero = allZero(number.whole) && allZero(number.fraction);
    return number.negative && !showsZero ? u'-' + text : text;
}

} // namespace

QString FormatAmount(const QString &amountText, long groupSize)
{
    return FormatNumber(amountText, amountConventions().tlonda, groupSize);
}

QString FormatNumber(const QString &numberText, int decimals, long groupSize)
{
    DecimalText number = readDecimal(numberText);
    if (allZero(number.whole) && allZero(number.fraction))
        return QString();
    decimals = qBound(0, decimals, 9);
    roundTo(number, decimals);
    return composed(std::move(number), decimals, groupSize);
}

// Lists format thousands of amounts: the digits are read from the integer, rounded as roundTo
// rounds, and written from the right into one buffer, with the same rules as composed().
QString FormatAmount(Currency amount, long groupSize)
{
    if (!amount.isValid())
        return amount.toString();
    if (amount == Currency())
        return QString();
    const AmountConventions &conventions = amountConventions();
    const int decimals = qBound(0, conventions.tlonda, 9);
    const quint64 magnitude = quint64(amount.magnitude().raw());
    quint64 whole = magnitude / Currency::Scale;
    quint64 fraction = magnitude % Currency::Scale; // four decimals
    quint64 unit = 1;
    for (int d = 0; d < decimals; ++d)
        unit *= 10;
    if (decimals < 4) {
        const quint64 step = quint64(Currency::Scale) / unit;
        fraction = fraction / step + (fraction % step >= step / 2 ? 1 : 0);
        if (fraction == unit) {
            fraction = 0;
            ++whole;
        }
    } else {
        fraction *= unit / quint64(Currency::Scale);
    }
    const bool showsZero = whole == 0 && fraction == 0;
    char16_t text[64];
    int at = 64;
    for (int d = 0; d < decimals; ++d, fraction /= 10)
        text[--at] = char16_t(u'0' + fraction % 10);
    if (decimals > 0)
        text[--at] = conventions.decimalSeparator.unicode();
    // No leading zero before the point (".50"); a lone zero without decimals.
    for (long n = 0; whole > 0 || (n == 0 && decimals == 0); ++n, whole /= 10) {
        if (groupSize > 0 && n > 0 && n % groupSize == 0)
            text[--at] = conventions.thousandsSeparator.unicode();
        text[--at] = char16_t(u'0' + whole % 10);
    }
    if (amount < Currency() && !showsZero)
        text[--at] = u'-';
    return QString(reinterpret_cast<const QChar *>(text + at), 64 - at);
}
