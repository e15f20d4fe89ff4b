#include "testsupport/KeyBurst.h"

#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <QWidget>
#include <QtTest>

KeyBurst::KeyBurst(QWidget *window, int key)
    : m_window(window)
    , m_key(key)
{
    qApp->installEventFilter(this);
    // The innermost dialog is cancelled first: an outer one may not have begun to run yet.
    connect(&m_canceller, &QTimer::timeout, this, [] {
        if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
            dialog->reject();
    });
    m_canceller.start(20);
}

KeyBurst::~KeyBurst()
{
    qApp->removeEventFilter(this);
}

int KeyBurst::press()
{
    m_dialogs = 0;
    m_secondSent = false;
    pressOnWindow();
    if (!m_secondSent)
        pressOnWindow();
    QCoreApplication::processEvents();
    return m_dialogs;
}

// Through the window system's way in, where shortcuts are matched before a blocked window
// drops the key.
void KeyBurst::pressOnWindow()
{
    QWindow *handle = m_window->windowHandle();
    qt_handleKeyEvent(handle, QEvent::KeyPress, m_key, Qt::NoModifier);
    qt_handleKeyEvent(handle, QEvent::KeyRelease, m_key, Qt::NoModifier);
}

bool KeyBurst::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::WindowBlocked && watched == m_window && !m_secondSent) {
        m_secondSent = true;
        pressOnWindow();
    } else if (event->type() == QEvent::Show) {
        if (qobject_cast<QDialog *>(watched))
            ++m_dialogs;
    }
    return QObject::eventFilter(watched, event);
}
