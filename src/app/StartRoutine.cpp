#include "app/StartRoutine.h"

#include "app/MainWindow.h"
#include "app/ProgramScreens.h"
#include "app/SplashWindow.h"

#include <QCoreApplication>

StartRoutine::StartRoutine(int splashMilliseconds)
    : m_splashMilliseconds(splashMilliseconds)
{
}

StartRoutine::~StartRoutine() = default;

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
