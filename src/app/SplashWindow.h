#pragma once

#include <QTimer>
#include <QWidget>

// "start": the picture shown while the program starts. After its time it asks for the main
// window, whose arrival closes it.
class SplashWindow : public QWidget
{
    Q_OBJECT
public:
    explicit SplashWindow(int milliseconds = 2000);

signals:
    void timeUp();

private:
    QTimer m_timer;
};
