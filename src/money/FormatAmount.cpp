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

// An amount's digits rounded to the decimals as roundTo does, read from its integer instead of
// its text (lists format thousands of amounts).
DecimalText roundedDigits(Currency amount, int decimals)
{
    const qint64 raw = amount.raw();
    const quint64 magnitude = raw < 0 ? 0 - quint64(raw) : quint64(raw);
    quint64 whole = magnitude / Currency::Scale;
    quint64 fraction = magnitude % Currency::Scale; // four decimals
    quint64 unit = 1;
    for (int d = 0; d < decimals; ++d)
        unit *= 10;
    if (decimals < 4) {
        const quint64 step = quint64(Currency::Scale) / unit;
        const bool up = fraction % step >= step / 2;
        fraction = fraction / step + (up ? 1 : 0);
        if (fraction == unit) {
            fraction = 0;
            ++whole;
        }
    } else {
        fraction *= unit / quint64(Currency::Scale);
    }
    DecimalText digits;
    digits.negative = raw < 0;
    digits.whole = QString::number(whole);
    if (decimals > 0)
        digits.fraction = QString::number(fraction).rightJustified(decimals, u'0');
    return digits;
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

QString FormatAmount(Currency amount, long groupSize)
{
    if (!amount.isValid())
        return amount.toString();
    if (amount == Currency())
        return QString();
    const int decimals = qBound(0, amountConventions().tlonda, 9);
    return composed(roundedDigits(amount, decimals), decimals, groupSize);
}
