#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

class QWidget;

// A screen key pressed twice in a burst, as the window system delivers it: the first press goes
// to the focused control; the second reaches the window the moment a dialog of the first blocks
// it, before the dialog takes the focus (or right after the first press when it opened none).
// Every dialog that opens meanwhile is counted and cancelled.
class KeyBurst : public QObject
{
public:
    KeyBurst(QWidget *window, int key);
    ~KeyBurst() override;

    // Presses the key twice on the window's focused control; answers the dialogs that opened.
    int press();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void pressOnWindow();

    QPointer<QWidget> m_window;
    int m_key;
    QTimer m_canceller;
    int m_dialogs = 0;
    bool m_secondSent = false;
};
