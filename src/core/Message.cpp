#include "core/Message.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>

namespace Message {

namespace {

Responder &responder()
{
    static Responder installed;
    return installed;
}

bool show(Kind kind, const QString &text)
{
    if (responder())
        return responder()(kind, text);
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

} // namespace

void exclamation(const QString &text)
{
    show(Kind::Exclamation, text);
}

void information(const QString &text)
{
    show(Kind::Information, text);
}

void notice(const QString &text)
{
    show(Kind::Notice, text);
}

bool question(const QString &text)
{
    return show(Kind::Question, text);
}

void setResponder(Responder installed)
{
    responder() = std::move(installed);
}

} // namespace Message
