#include "controls/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

bool LoadQtTranslations()
{
    static QTranslator *translator = nullptr;
    if (translator)
        return true;
    auto *loaded = new QTranslator(QCoreApplication::instance());
    if (!loaded->load(QLocale(QLocale::Turkish, QLocale::Turkey), QStringLiteral("qtbase"), QStringLiteral("_"),
            QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        delete loaded;
        return false;
    }
    QCoreApplication::installTranslator(loaded);
    translator = loaded;
    return true;
}
