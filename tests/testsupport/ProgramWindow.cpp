#include "testsupport/ProgramWindow.h"

#include "core/ProgramScreens.h"
#include "core/Translations.h"

#include <QtTest>

std::unique_ptr<MainWindow> ShowProgramWindow()
{
    LoadQtTranslations(); // Qt's own texts in Turkish, as the program shows them
    auto window = std::make_unique<MainWindow>();
    AddProgramScreens(*window);
    window->show();
    QApplication::setActiveWindow(window.get());
    if (!QTest::qWaitForWindowActive(window.get()))
        qWarning("the main window did not become active");
    return window;
}
