#include "controls/MessageBox.h"

#include <QApplication>
#include <QMessageBox>

bool ShowMessageBox(Message::Kind kind, const QString &text)
{
    using Kind = Message::Kind;
    const QMessageBox::Icon icon = kind == Kind::Exclamation ? QMessageBox::Warning
        : kind == Kind::Information                          ? QMessageBox::Information
                                                             : QMessageBox::Question;
    const QMessageBox::StandardButtons buttons
        = kind == Kind::Question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok;
    QMessageBox box(icon, QStringLiteral("Quandel"), text, buttons, QApplication::activeWindow());
    if (kind == Kind::Question)
        box.setDefaultButton(QMessageBox::No); // an Enter too many deletes nothing
    return box.exec() == QMessageBox::Yes;
}
