#pragma once

#include "controls/Screen.h"
#include "printing/ReportColumn.h"

#include <QPointer>

class DcList;

// A report shown on the screen: a read-only grid in a window of its own in the main window;
// Esc closes it. Its columns are the listed ones of the report's declaration.
class ListWindow : public Screen
{
    Q_OBJECT
public:
    ListWindow(const QString &formName, const QString &caption, QWidget *parent = nullptr);

    DcList *list() const { return m_list; }
    // Empties the list and takes the declaration's columns, with room for all of them.
    void setColumns(const ReportColumns &columns);
    // Rows of typed cells, one per declared column, at once; false when the grid could not take
    // them all.
    bool addRows(const std::vector<QVariantList> &rows);
    bool addRow(const QVariantList &cells) { return addRows({ cells }); }
    // After the columns are defined: room for all of them.
    void fitToColumns();

private:
    DcList *m_list;
    ReportColumns m_columns;
};

// Shows the report's list window held in window in the main window, empty, with the
// declaration's columns; makes it first when there is none (it goes away when closed).
ListWindow *ShowListWindow(
    QPointer<ListWindow> &window, const QString &formName, const QString &caption, const ReportColumns &columns);
