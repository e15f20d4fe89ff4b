#include "books/TurkishText.h"

#include <QLocale>

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

QStringList CaseSpellings(const QString &text)
{
    // The whole text mapped once each way, letter by letter; a text whose case forms differ in
    // length (ß -> SS) is sought only as it stands.
    const QString upper = TurkishUpper(text);
    const QString lower = turkish().toLower(text);
    const bool aligned = upper.size() == text.size() && lower.size() == text.size();
    QStringList spellings { QString() };
    for (qsizetype i = 0; i < text.size(); ++i) {
        QString forms(text.at(i));
        for (const QChar form : { aligned ? upper.at(i) : text.at(i), aligned ? lower.at(i) : text.at(i) })
            if (!forms.contains(form))
                forms += form;
        QStringList longer;
        for (const QString &start : std::as_const(spellings))
            for (const QChar form : forms)
                longer << start + form;
        spellings = longer;
    }
    return spellings;
}

QString AnySpelling(const QString &column, const QString &text)
{
    return QStringLiteral("%1 IN (SELECT value FROM json_each(spellings(%2)))").arg(column, text);
}

QString CardCodeOf(const QString &code)
{
    return QStringLiteral("coalesce((SELECT kod FROM carkart WHERE kod = %1), (SELECT kod FROM carkart WHERE %2))")
        .arg(code, AnySpelling(QStringLiteral("kod"), code));
}
