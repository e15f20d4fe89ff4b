#include "money/AmountInWords.h"

#include "money/AmountConventions.h"
#include "money/RoundAmount.h"

#include <array>

namespace {

const std::array<QString, 10> &ones()
{
    static const std::array<QString, 10> words = { QString(), QStringLiteral("bir"), QStringLiteral("iki"),
        QStringLiteral("üç"), QStringLiteral("dört"), QStringLiteral("beş"), QStringLiteral("altı"),
        QStringLiteral("yedi"), QStringLiteral("sekiz"), QStringLiteral("dokuz") };
    return words;
}

const std::array<QString, 10> &tens()
{
    static const std::array<QString, 10> words = { QString(), QStringLiteral("on"), QStringLiteral("yirmi"),
        QStringLiteral("otuz"), QStringLiteral("kırk"), QStringLiteral("elli"), QStringLiteral("altmış"),
        QStringLiteral("yetmiş"), QStringLiteral("seksen"), QStringLiteral("doksan") };
    return words;
}

const std::array<QString, 6> &groups()
{
    static const std::array<QString, 6> words = { QString(), QStringLiteral("bin"), QStringLiteral("milyon"),
        QStringLiteral("milyar"), QStringLiteral("trilyon"), QStringLiteral("trilyar") };
    return words;
}

int digitAt(const QString &digits, qsizetype i)
{
    return digits[i].digitValue();
}

QString wholeUnitsInWords(qint64 units)
{
    QString digits = QString::number(units);
    digits = digits.rightJustified((digits.size() + 2) / 3 * 3, u'0');
    QString words;
    qsizetype group = digits.size() / 3;
    for (qsizetype start = 0; start < digits.size(); start += 3) {
        --group;
        const int h = digitAt(digits, start);
        const int t = digitAt(digits, start + 1);
        const int u = digitAt(digits, start + 2);
        const int value = h * 100 + t * 10 + u;
        if (h != 1)
            words += ones()[h];
        if (h != 0)
            words += QStringLiteral("yüz");
        words += tens()[t];
        if (!(group == 1 && value == 1))
            words += ones()[u];
        if (value != 0)
            words += groups()[group];
    }
    return words;
}

// The digits after the point of the rounded amount, at least two of them.
QString subUnitDigits(Currency rounded)
{
    const qint64 magnitude = rounded.raw() < 0 ? -rounded.raw() : rounded.raw();
    QString digits = QString::number(magnitude % Currency::Scale).rightJustified(4, u'0');
    while (digits.size() > 2 && digits.endsWith(u'0'))
        digits.chop(1);
    return digits;
}

} // namespace

QString AmountInWords(Currency amount, QDate date)
{
    const bool newLira = date.isValid() && date < QDate(2009, 1, 1);
    const QString currencyWord = newLira ? QStringLiteral("YTL") : QStringLiteral("TL");
    const QString subUnitWord = newLira ? QStringLiteral("YKR") : QStringLiteral("Kr");
    const qint64 units = amount.wholeUnits();
    QString result = wholeUnitsInWords(units < 0 ? -units : units) + u' ' + currencyWord;

    const QString digits = subUnitDigits(RoundAmount(amount));
    if (digits.toInt() != 0)
        result += u' ' + tens()[digitAt(digits, 0)] + ones()[digitAt(digits, 1)] + u' ' + subUnitWord;
    return result;
}
