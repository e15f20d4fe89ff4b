#include "testsupport/ScreenFixture.h"

#include "app/ProgramScreens.h"
#include "books/Clock.h"
#include "controls/DcCellEditor.h"
#include "controls/DcList.h"
#include "controls/Translations.h"
#include "controls/XText.h"
#include "printing/PrintSettings.h"
#include "printing/PrinterSetupDialog.h"
#include "testsupport/Typing.h"

#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <QtTest>

ScreenFixture::ScreenFixture(QDate today)
    : m_setsToday(today.isValid())
{
    if (m_setsToday)
        SetToday(today);
    ResetPrintSettings();
}

// The window goes first: its screens still reach the data file while they close.
ScreenFixture::~ScreenFixture()
{
    m_window.reset();
    if (m_setsToday)
        SetToday(QDate());
}

// The main window with every screen of the program, shown and active, as after start-up.
MainWindow &ScreenFixture::window()
{
    if (m_window)
        return *m_window;
    LoadQtTranslations(); // Qt's own texts in Turkish, as the program shows them
    m_window = std::make_unique<MainWindow>();
    AddProgramScreens(*m_window);
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
    if (!QTest::qWaitForWindowActive(m_window.get()))
        qWarning("the main window did not become active");
    return *m_window;
}

void AnswerPrinterSetup(const char *button, QObject *context, std::function<void(QWidget *dialog)> first)
{
    QTimer::singleShot(0, context, [button, first] {
        auto *dialog = qobject_cast<PrinterSetupDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        if (first)
            first(dialog);
        dialog->findChild<QPushButton *>(QString::fromLatin1(button))->click();
    });
}

void TypeIntoField(XText *field, const QString &keys)
{
    field->setFocus();
    QCoreApplication::processEvents(); // the field selects its text on entry
    typeKeys(field->textBox(), keys);
}

void TypeGridRow(DcList *list, const QStringList &cells)
{
    QTest::keyClick(list->view(), Qt::Key_Return);
    for (const QString &cell : cells) {
        typeKeys(list->editor(), cell);
        QTest::keyClick(list->editor(), Qt::Key_Return);
    }
}

QStringList GridColumn(const DcList *list, int column)
{
    QStringList texts;
    for (int row = 0; row < list->ListCount(); ++row)
        texts << list->view()->model()->index(row, column).data().toString();
    return texts;
}

QStringList GridRows(const DcList *list)
{
    QStringList rows;
    for (int row = 0; row < list->ListCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < list->view()->model()->columnCount(); ++column)
            cells << list->view()->model()->index(row, column).data().toString();
        rows << cells.join(u'|');
    }
    return rows;
}

QStringList CutFigures(DcList *list)
{
    QTableView *view = list->view();
    view->grab(); // painted as a person sees it; a painted cell may ask for a wider column
    QCoreApplication::processEvents();
    const QFontMetrics metrics(view->font());
    const int margins = 2 * (view->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, view) + 1);
    static const QRegularExpression figure(QStringLiteral("^-?[0-9.,]+( [AB])?$"));
    QStringList cut;
    for (int row = 0; row < list->ListCount(); ++row)
        for (int column = 0; column < view->model()->columnCount(); ++column) {
            const QModelIndex index = view->model()->index(row, column);
            const QString text = index.data().toString();
            if (figure.match(text).hasMatch() && metrics.horizontalAdvance(text) + margins > view->columnWidth(column))
                cut << QStringLiteral("%1,%2: %3").arg(row).arg(column).arg(text);
        }
    return cut;
}
