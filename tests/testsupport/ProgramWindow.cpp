#include "testsupport/ProgramWindow.h"

#include "core/ProgramScreens.h"

#include <QtTest>

std::unique_ptr<MainWindow> ShowProgramWindow()
{
    auto window = std::make_unique<MainWindow>();
    AddProgramScreens(*window);
    window->show();
    QApplication::setActiveWindow(window.get());
    if (!QTest::qWaitForWindowActive(window.get()))
        qWarning("the main window did not become active");
    return window;
}
