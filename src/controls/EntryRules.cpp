#include "controls/EntryRules.h"

#include <QLocale>

double EntryValue(const QString &entry)
{
    return QLocale::c().toDouble(entry.endsWith(u'.') ? entry + u'0' : entry);
}

QString ExactNumberText(const QString &text)
{
    const QString t = text.trimmed();
    qsizetype i = 0;
    const bool negative = i < t.size() && t[i] == u'-';
    if (i < t.size() && (t[i] == u'-' || t[i] == u'+'))
        ++i;
    QString whole;
    QString fraction;
    bool point = false;
    for (; i < t.size(); ++i) {
        if (t[i].isDigit())
            (point ? fraction : whole) += t[i];
        else if (t[i] == u'.' && !point)
            point = true;
        else
            break;
    }
    while (whole.startsWith(u'0'))
        whole.remove(0, 1);
    while (fraction.endsWith(u'0'))
        fraction.chop(1);
    if (whole.isEmpty() && fraction.isEmpty())
        return QStringLiteral("0");
    if (whole.isEmpty())
        whole = QStringLiteral("0");
    return (negative ? QStringLiteral("-") : QString()) + whole + (fraction.isEmpty() ? QString() : u'.' + fraction);
}

bool TypeIntoNumber(QString &entry, QChar c, double maximum, int decimals, bool pointTaken)
{
    if (c.isDigit()) {
        if (EntryValue(entry + c) > maximum)
            return false;
        entry += c;
    } else if (c == u'.' || c == u',') {
        if (decimals != 0 && !pointTaken)
            entry += u'.';
    } else if (c == u'+') {
        entry += QStringLiteral("000");
    } else {
        return false;
    }
    return true;
}

QString DateBeforeDigit(const QString &text)
{
    QString date = text;
    if (date.size() == 2 && !date.contains(u'.'))
        date += u'.';
    if (date.size() == 5 && date.indexOf(u'.', 4) < 0)
        date += u'.';
    return date;
}

QString DateBeforeBackspace(const QString &text)
{
    if (text.size() == 3 && text.indexOf(u'.', 1) >= 0)
        return text.left(2);
    if (text.size() == 6 && text.indexOf(u'.', 4) >= 0)
        return text.left(5);
    return text;
}
