#include "core/TurkishText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>
#include <QStringList>

namespace {

const QLocale &turkish()
{
    static const QLocale locale(QLocale::Turkish, QLocale::Turkey);
    return locale;
}

} // namespace

QString TurkishUpper(const QString &text)
{
    return turkish().toUpper(text);
}

QString AnySpelling(const QString &column, int placeholder)
{
    return QStringLiteral("%1 IN (SELECT value FROM json_each(?%2))").arg(column).arg(placeholder);
}

QString AnySpellingValue(const QString &text)
{
    QStringList spellings { QString() };
    for (const QChar c : text) {
        QStringList forms { QString(c) };
        for (const QString &form : { turkish().toUpper(QString(c)), turkish().toLower(QString(c)) })
            if (!forms.contains(form))
                forms << form;
        QStringList longer;
        for (const QString &start : spellings)
            for (const QString &form : forms)
                longer << start + form;
        spellings = longer;
    }
    return QString::fromUtf8(QJsonDocument(QJsonArray::fromStringList(spellings)).toJson(QJsonDocument::Compact));
}
