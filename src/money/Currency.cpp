#include "money/Currency.h"

#include <cmath>
#include <iterator>
#include <limits>

qint64 roundHalfEven(qint64 value, qint64 step)
{
    qint64 quotient = value / step;
    qint64 remainder = value % step;
    if (remainder < 0) {
        remainder += step;
        --quotient;
    }
    if (2 * remainder > step || (2 * remainder == step && (quotient & 1)))
        ++quotient;
    return quotient * step;
}

Currency Currency::fromDouble(double value, bool *ok)
{
    const double scaled = std::nearbyint(value * Scale); // the default rounding mode: halves to even
    const bool fits = std::isfinite(scaled) && std::fabs(scaled) < 9.2e18;
    if (ok)
        *ok = fits;
    return fits ? fromRaw(qint64(scaled)) : overflow();
}

Currency Currency::fromString(QStringView text, bool *ok)
{
    const QStringView t = text.trimmed();
    qsizetype i = 0;
    bool negative = false;
    if (i < t.size() && (t[i] == u'-' || t[i] == u'+'))
        negative = t[i++] == u'-';

    qint64 raw = 0;
    int decimals = -1; // -1 while still in the integer part
    bool anyDigit = false;
    bool roundUp = false;
    bool tie = false;
    bool valid = true;
    for (; i < t.size() && valid; ++i) {
        const QChar c = t[i];
        if (c == u'.' && decimals < 0) {
            decimals = 0;
            continue;
        }
        if (!c.isDigit()) {
            valid = false;
            break;
        }
        anyDigit = true;
        const int digit = c.digitValue();
        if (decimals == 4) { // the first digit past the fourth decides, the rest break ties
            roundUp = digit > 5;
            tie = digit == 5;
            decimals = 5;
            continue;
        }
        if (decimals == 5) {
            if (tie && digit != 0) {
                roundUp = true;
                tie = false;
            }
            continue;
        }
        if (raw > (std::numeric_limits<qint64>::max() - digit) / 10) {
            valid = false;
            break;
        }
        raw = raw * 10 + digit;
        if (decimals >= 0)
            ++decimals;
    }
    valid = valid && anyDigit;
    for (int d = qMax(decimals, 0); valid && d < 4; ++d) {
        if (raw > std::numeric_limits<qint64>::max() / 10)
            valid = false;
        else
            raw *= 10;
    }
    if (valid && (roundUp || (tie && (raw & 1))))
        ++raw;
    if (ok)
        *ok = valid;
    if (!valid)
        return Currency();
    return fromRaw(negative ? -raw : raw);
}

QString Currency::toString() const
{
    if (!isValid())
        return QStringLiteral("Taşma");
    // Written from the right into one buffer: lists turn thousands of amounts into text.
    char16_t text[32];
    char16_t *start = std::end(text);
    const quint64 size = quint64(magnitude().raw());
    quint64 whole = size / Scale;
    quint64 fraction = size % Scale;
    int places = 4;
    while (places > 0 && fraction % 10 == 0) {
        fraction /= 10;
        --places;
    }
    for (int d = 0; d < places; ++d, fraction /= 10)
        *--start = char16_t(u'0' + fraction % 10);
    if (places > 0)
        *--start = u'.';
    do {
        *--start = char16_t(u'0' + whole % 10);
        whole /= 10;
    } while (whole > 0);
    if (m_raw < 0)
        *--start = u'-';
    return QString::fromUtf16(start, std::end(text) - start);
}
