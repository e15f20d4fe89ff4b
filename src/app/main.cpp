#include "app/StartRoutine.h"
#include "books/OpenBooks.h"
#include "controls/MessageBox.h"
#include "controls/Translations.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    LoadQtTranslations();
    Message::setResponder(ShowMessageBox);
    if (!OpenBooks(QCoreApplication::applicationDirPath()))
        return 1;
    StartRoutine start;
    start.showSplash();
    return app.exec();
}
