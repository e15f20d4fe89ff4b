#pragma once

#include <QObject>

#include <memory>

class MainWindow;
class SplashWindow;

// The program's start once the books are open (OpenBooks): the splash, and after it the main window.
class StartRoutine : public QObject
{
    Q_OBJECT
public:
    explicit StartRoutine(int splashMilliseconds = 2000);
    ~StartRoutine() override;

    // The splash; when its time is up, the main window.
    void showSplash();

    SplashWindow *splash() const { return m_splash.get(); }
    MainWindow *mainWindow() const { return m_mainWindow.get(); }

private:
    void showMainWindow();

    int m_splashMilliseconds;
    std::unique_ptr<SplashWindow> m_splash;
    std::unique_ptr<MainWindow> m_mainWindow;
};
