#include "core/ProgramScreens.h"

#include "core/MainWindow.h"
#include "core/SettingsScreen.h"

void AddProgramScreens(MainWindow &window)
{
    window.addScreen(QStringLiteral("mnuayarlar"), [] { return new SettingsScreen; });
}
