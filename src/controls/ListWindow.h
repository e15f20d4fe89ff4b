#pragma once

#include "controls/Screen.h"

class DcList;

// A report shown on the screen: a read-only grid in a window of its own in the main window;
// Esc closes it.
class ListWindow : public Screen
{
    Q_OBJECT
public:
    ListWindow(const QString &formName, const QString &caption, QWidget *parent = nullptr);

    DcList *list() const { return m_list; }
    // After the columns are defined: room for all of them.
    void fitToColumns();

private:
    DcList *m_list;
};
