#pragma once

#include <QObject>

#include <memory>

class MainWindow;
class SplashWindow;

// The program's start: number conventions, the data file (opened, or created and opened),
// the parameters, then the splash and after it the main window.
class StartRoutine : public QObject
{
    Q_OBJECT
public:
    explicit StartRoutine(int splashMilliseconds = 2000);
    ~StartRoutine() override;

    // Steps up to the parameters; false (after "Dosyalar Yaratılamıyor...") when the data file
    // can be neither opened nor created, or after saying why an existing file is left alone
    // (in use by another program, not ours, damaged).
    bool run(const QString &programFolder);
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
