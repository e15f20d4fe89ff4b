#include "core/StartRoutine.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    StartRoutine start;
    if (!start.run(QCoreApplication::applicationDirPath()))
        return 1;
    start.showSplash();
    return app.exec();
}
