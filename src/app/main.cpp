#include "app/EsmmCommand.h"
#include "app/StartRoutine.h"
#include "books/OpenBooks.h"
#include "controls/MessageBox.h"
#include "controls/Translations.h"

#include <QApplication>
#include <QTextStream>

int main(int argc, char *argv[])
{
    const QByteArray first = argc > 1 ? QByteArray(argv[1]) : QByteArray();
    if (first == "--help" || first == "-h") {
        QTextStream(stdout) << CommandLineHelp();
        return 0;
    }
    if (first == "--esmm-aktar") {
        QCoreApplication app(argc, argv);
        QTextStream out(stdout);
        return RunEsmmCommand(QCoreApplication::applicationDirPath(), app.arguments().mid(2), out);
    }
    QApplication app(argc, argv);
    LoadQtTranslations();
    Message::setResponder(ShowMessageBox);
    if (!OpenBooks(QCoreApplication::applicationDirPath()))
        return 1;
    StartRoutine start;
    start.showSplash();
    return app.exec();
}
