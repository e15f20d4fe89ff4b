#include "core/StartRoutine.h"

#include "core/DataFiles.h"
#include "core/MainWindow.h"
#include "core/Message.h"
#include "core/Parameters.h"
#include "core/ProgramScreens.h"
#include "core/SplashWindow.h"

#include <QCoreApplication>

StartRoutine::StartRoutine(int splashMilliseconds)
    : m_splashMilliseconds(splashMilliseconds)
{
}

StartRoutine::~StartRoutine() = default;

bool StartRoutine::run(const QString &programFolder)
{
    SetStartConventions();
    SetProgramFolder(programFolder);

    bool open = OpenDataFiles();
    while (!open && CreateDataFiles())
        open = OpenDataFiles();
    if (!open) {
        CloseDataFiles();
        Message::exclamation(QStringLiteral("Dosyalar Yaratılamıyor..."));
        return false;
    }
    LoadParameters();
    return true;
}

void StartRoutine::showSplash()
{
    m_splash = std::make_unique<SplashWindow>(m_splashMilliseconds);
    connect(m_splash.get(), &SplashWindow::timeUp, this, &StartRoutine::showMainWindow);
    m_splash->show();
}

void StartRoutine::showMainWindow()
{
    if (!m_mainWindow) {
        m_mainWindow = std::make_unique<MainWindow>();
        AddProgramScreens(*m_mainWindow);
        // Loading the main window unloads the splash.
        connect(m_mainWindow.get(), &MainWindow::shown, this, [this] {
            if (m_splash)
                m_splash.release()->deleteLater();
        });
    }
    m_mainWindow->show();
    QCoreApplication::processEvents();
}
