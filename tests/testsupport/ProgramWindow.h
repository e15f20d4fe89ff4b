#pragma once

#include "core/MainWindow.h"

#include <QAction>

#include <memory>

// The main window with every screen of the program, shown and active, as after start-up.
std::unique_ptr<MainWindow> ShowProgramWindow();

// Chooses a menu item and returns the screen it opened (nullptr when none did).
template <typename ScreenType> ScreenType *OpenFromMenu(MainWindow &window, const char *item, const char *form)
{
    window.menuItem(QString::fromLatin1(item))->trigger();
    return window.findChild<ScreenType *>(QString::fromLatin1(form));
}
