#include "controls/ListWindow.h"

#include "controls/DcList.h"
#include "controls/OpenInMain.h"
#include "controls/ReportGrid.h"

#include <QTableView>
#include <QVBoxLayout>

ListWindow::ListWindow(const QString &formName, const QString &caption, QWidget *parent)
    : Screen(formName, caption, parent)
    , m_list(new DcList(this))
{
    m_list->setObjectName(QStringLiteral("dclist1"));
    m_list->setAccessibleName(caption);
    m_list->view()->setAccessibleName(caption);
    m_list->setZebra(true);
    m_list->setEditable(false);
    m_list->setScroll(3);
    auto *page = new QVBoxLayout(this);
    page->addWidget(m_list);
    setFocusChain({ m_list });
    connect(m_list, &DcList::KeyDown, this, [this](int key, int, int) {
        if (key == Qt::Key_Escape)
            closeScreen();
    });
}

void ListWindow::fitToColumns()
{
    m_list->fitToColumns(16);
    if (parentWidget())
        parentWidget()->adjustSize();
}

void ListWindow::setColumns(const ReportColumns &columns)
{
    m_columns = columns;
    m_list->Clear();
    m_list->Reset();
    DefineReportColumns(*m_list, m_columns);
    fitToColumns();
}

bool ListWindow::addRows(const std::vector<QVariantList> &rows)
{
    return AddReportRows(*m_list, m_columns, rows);
}

ListWindow *ShowListWindow(
    QPointer<ListWindow> &window, const QString &formName, const QString &caption, const ReportColumns &columns)
{
    if (!window) {
        window = new ListWindow(formName, caption);
        window->setAttribute(Qt::WA_DeleteOnClose);
    }
    window->setColumns(columns);
    OpenInMain(window);
    window->fitToColumns();
    return window;
}
