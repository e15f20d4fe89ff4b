#include "controls/Screen.h"

#include "controls/OpenInMain.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QShortcut>

Screen::Screen(const QString &formName, const QString &caption, QWidget *parent)
    : QWidget(parent)
{
    setObjectName(formName);
    setWindowTitle(caption);
    if (QMdiArea *area = MainArea())
        setWindowIcon(area->window()->windowIcon());
}

void Screen::closeScreen()
{
    if (auto *holder = qobject_cast<QMdiSubWindow *>(parentWidget()))
        holder->close();
    else
        close();
}

void Screen::closeEvent(QCloseEvent *event)
{
    if (blockedByDialog()) {
        event->ignore();
        return;
    }
    QWidget::closeEvent(event);
}

void Screen::setFocusChain(std::initializer_list<QWidget *> fields)
{
    QWidget *previous = nullptr;
    for (QWidget *field : fields) {
        if (previous)
            setTabOrder(previous, field);
        previous = field;
    }
    m_firstField = fields.size() > 0 ? *fields.begin() : nullptr;
    if (m_firstField)
        m_firstField->setFocus();
}

QPushButton *Screen::addCommand(
    const QString &objectName, const QString &caption, const QKeySequence &key, std::function<void()> action)
{
    auto *button = new QPushButton(caption, this);
    button->setObjectName(objectName);
    button->setAccessibleName(caption.trimmed());
    button->setAutoDefault(true);
    const auto run = [this, action = std::move(action)] {
        if (!blockedByDialog())
            action();
    };
    connect(button, &QPushButton::clicked, this, run);
    auto *shortcut = new QShortcut(key, this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, run);
    return button;
}

bool Screen::blockedByDialog() const
{
    const QWidget *modal = QApplication::activeModalWidget();
    return modal && modal != window();
}

void Screen::keyPressEvent(QKeyEvent *event)
{
    QWidget *focused = focusWidget();
    const bool inFirstField
        = m_firstField && focused && (focused == m_firstField || m_firstField->isAncestorOf(focused));
    if (event->key() == Qt::Key_Escape && inFirstField) {
        closeScreen();
        return;
    }
    // Enter brings the focus to a button; Enter on it presses it. A choice (a list to open, a
    // box to tick) has no use for Enter: it moves on, as from a field.
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto *button = qobject_cast<QPushButton *>(focused);
    if (enter && button && button->isEnabled()) {
        button->click();
        return;
    }
    if (enter && (qobject_cast<QComboBox *>(focused) || qobject_cast<QCheckBox *>(focused))) {
        focusNextChild();
        return;
    }
    QWidget::keyPressEvent(event);
}
