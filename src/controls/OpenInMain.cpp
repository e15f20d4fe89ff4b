#include "controls/OpenInMain.h"

#include <QDialog>
#include <QEventLoop>
#include <QLayout>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>

namespace {

QPointer<QMdiArea> &mainArea()
{
    static QPointer<QMdiArea> area;
    return area;
}

QMdiSubWindow *subWindowOf(QMdiArea *area, QWidget *screen)
{
    for (QMdiSubWindow *window : area->subWindowList())
        if (window->widget() == screen)
            return window;
    return nullptr;
}

void showModally(QWidget *screen)
{
    if (auto *dialog = qobject_cast<QDialog *>(screen)) {
        dialog->exec();
        return;
    }
    screen->setWindowModality(Qt::ApplicationModal);
    screen->show();
    QEventLoop loop;
    while (screen->isVisible())
        loop.processEvents(QEventLoop::WaitForMoreEvents);
    screen->setWindowModality(Qt::NonModal);
}

} // namespace

void SetMainArea(QMdiArea *area)
{
    mainArea() = area;
}

QMdiArea *MainArea()
{
    return mainArea();
}

void OpenInMain(QWidget *screen, int mode)
{
    QMdiArea *area = mainArea();
    if (!screen || !area)
        return;
    if (mode > 0)
        showModally(screen);
    QMdiSubWindow *window = subWindowOf(area, screen);
    if (!window) {
        window = area->addSubWindow(screen);
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->setWindowIcon(area->window()->windowIcon());
        // The window is never smaller than what its screen needs: a value that grows (a large
        // amount) widens it instead of being cut.
        window->layout()->setSizeConstraint(QLayout::SetMinimumSize);
    }
    window->show();
    screen->show();
    area->setActiveSubWindow(window);
}
