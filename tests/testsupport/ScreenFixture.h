#pragma once

#include "app/MainWindow.h"
#include "testsupport/BooksFixture.h"

#include <QAction>
#include <QDate>

#include <functional>
#include <memory>

class DcList;
class XText;

// What a screen test stands on: the books' fixture and, once asked for, the program's main
// window with every screen. Make one in init() and drop it in cleanup(); books written before the
// window is shown are there when its screens open.
class ScreenFixture
{
public:
    // today: the day the program takes for today (none: the clock's). The print settings start
    // afresh.
    explicit ScreenFixture(QDate today = QDate());
    ~ScreenFixture();
    ScreenFixture(const ScreenFixture &) = delete;
    ScreenFixture &operator=(const ScreenFixture &) = delete;

    bool isReady() const { return m_books.isReady(); }
    MessageLog &messages() { return m_books.messages(); }
    MainWindow &window();

    // Chooses a menu item and returns the screen it opened (nullptr when none did).
    template <typename ScreenType> ScreenType *open(const char *item, const char *form)
    {
        window().menuItem(QString::fromLatin1(item))->trigger();
        return window().findChild<ScreenType *>(QString::fromLatin1(form));
    }

private:
    BooksFixture m_books;
    std::unique_ptr<MainWindow> m_window;
    bool m_setsToday;
};

// Presses a button of the printer settings dialog (by object name) as soon as it is shown,
// after first (when given) has set the dialog's controls as a person would.
void AnswerPrinterSetup(const char *button, QObject *context, std::function<void(QWidget *dialog)> first = {});
// Moves into an input field, as Enter or a click would, and types keys into it (see typeKeys).
void TypeIntoField(XText *field, const QString &keys);
// Types a grid row as a person does: Enter on the list opens the editor, then every cell's keys
// each followed by Enter.
void TypeGridRow(DcList *list, const QStringList &cells);
// The texts a grid shows in one column, top to bottom.
QStringList GridColumn(const DcList *list, int column);
// The rows a grid shows, each as its cells' texts joined by "|".
QStringList GridRows(const DcList *list);
// The cells of a grid that show a figure (an amount, a number, a balance with its side) and that
// their columns cut once the grid is painted: "row,column: text" each; empty when none is cut.
QStringList CutFigures(DcList *list);
