#include "controls/EntryRules.h"

#include <QLocale>

double EntryValue(const QString &entry)
{
    return QLocale::c().toDouble(entry.endsWith(u'.') ? entry + u'0' : entry);
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
