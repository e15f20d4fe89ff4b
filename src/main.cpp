#include "core/StartRoutine.h"
#include "core/Translations.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    LoadQtTranslations();
    StartRoutine start;
    if (!start.run(QCoreApplication::applicationDirPath()))
        return 1;
    start.showSplash();
    return app.exec();
}
