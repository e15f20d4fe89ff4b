#include "books/Message.h"

#include <cstdio>

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
    std::fprintf(stderr, "%s\n", qUtf8Printable(text));
    return false;
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
