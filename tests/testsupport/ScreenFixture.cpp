#include "testsupport/ScreenFixture.h"

#include "controls/DcCellEditor.h"
#include "controls/DcList.h"
#include "controls/XText.h"
#include "core/Clock.h"
#include "printing/PrintSettings.h"
#include "printing/PrinterSetupDialog.h"
#include "testsupport/ProgramWindow.h"
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

MainWindow &ScreenFixture::window()
{
    if (!m_window)
        m_window = ShowProgramWindow();
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
