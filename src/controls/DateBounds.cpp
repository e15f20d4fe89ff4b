#include "controls/DateBounds.h"

#include "controls/XText.h"

QString DateBounds(const QString &column, const XText *first, const XText *last, QVariantList &values)
{
    QString condition;
    const XText *ends[] = { first, last };
    const char *comparisons[] = { " >= ?", " <= ?" };
    for (int end = 0; end < 2; ++end) {
        const qint64 day = ends[end]->Value().toLongLong();
        if (day == 0)
            continue;
        values << day;
        condition += QStringLiteral(" AND ") + column + QString::fromLatin1(comparisons[end])
            + QString::number(values.size());
    }
    return condition;
}
