#pragma once

#include "controls/LabelFor.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <initializer_list>

class QLabel;
class QPushButton;

// What every screen shares: its form name and caption, the main window's icon, the order in
// which Enter and Up walk its fields, Esc in the first field to close it, Enter on a focused
// button to press it and Enter on a list or check box to move on.
class Screen : public QWidget
{
    Q_OBJECT
public:
    Screen(const QString &formName, const QString &caption, QWidget *parent = nullptr);

    // Closes the screen and the sub-window that holds it.
    void closeScreen();

protected:
    // The fields in the order Enter/Down and Up move through them; the first takes the focus.
    void setFocusChain(std::initializer_list<QWidget *> fields);
    QLabel *labelFor(const QString &caption, QWidget *field) { return LabelFor(caption, field, this); }
    // A button that its key presses from every control of the screen, and Enter while it has
    // the focus. Neither runs the action while blockedByDialog().
    QPushButton *addCommand(
        const QString &objectName, const QString &caption, const QKeySequence &key, std::function<void()> action);
    // Whether a modal dialog other than the screen's own window is up. Every nested event loop
    // of the program is such a dialog's, so a key pressed twice in a burst that reaches the
    // screen again while its first press is still handled (its rows stored, its dialog opening)
    // finds it blocked and cannot store the same fields twice.
    bool blockedByDialog() const;
    void keyPressEvent(QKeyEvent *event) override;
    // A screen is not closed while blockedByDialog(): the dialog lives in a call of the
    // screen's own, which must return first.
    void closeEvent(QCloseEvent *event) override;

private:
    QPointer<QWidget> m_firstField;
};
