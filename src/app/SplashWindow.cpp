#include "app/SplashWindow.h"

#include "app/ProgramArt.h"

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

SplashWindow::SplashWindow(int milliseconds)
{
    setObjectName(QStringLiteral("start"));
    setWindowTitle(QStringLiteral("Serbest Meslek "));
    setWindowIcon(ProgramIcon());
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto *picture = new QLabel(this);
    picture->setPixmap(SplashPicture());
    picture->setAccessibleName(QStringLiteral("Serbest Meslek"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(picture);
    setFixedSize(300, 170);
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());

    m_timer.setSingleShot(true);
    m_timer.setInterval(milliseconds);
    connect(&m_timer, &QTimer::timeout, this, &SplashWindow::timeUp);
    m_timer.start();
}
