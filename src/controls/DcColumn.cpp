#include "controls/DcColumn.h"

#include "money/Currency.h"
#include "money/DayNumber.h"
#include "money/FormatAmount.h"

#include <QDate>

bool IsColumnType(QChar letter)
{
    return QStringLiteral("AaNnTtSsMmBbVvEe").contains(letter);
}

QString DcColumn::display(const QString &value) const
{
    switch (kind().unicode()) {
    case u'n':
    case u'b': {
        // An amount that could not be summed shows its mark ("Taşma") as it is.
        static const QString overflowMark = Currency::overflow().toString();
        return value == overflowMark ? value : FormatNumber(value, onda, grup);
    }
    case u't': {
        const QDate date = QDate::fromString(value, QStringLiteral("dd.MM.yyyy"));
        return date.isValid() ? FormatDate(date) : value;
    }
    case u'v':
        return value == u"True" ? QStringLiteral("Var") : value == u"False" ? QStringLiteral("Yok") : value;
    case u'e':
        return value == u"True" ? QStringLiteral("Evet") : value == u"False" ? QStringLiteral("Hayır") : value;
    default:
        return value;
    }
}

Qt::Alignment DcColumn::alignment() const
{
    if (isFigure())
        return Qt::AlignRight | Qt::AlignVCenter;
    if (kind() == u's')
        return Qt::AlignCenter;
    return Qt::AlignLeft | Qt::AlignVCenter;
}
