#include "testsupport/MessageLog.h"

MessageLog::MessageLog()
{
    Message::setResponder([this](Message::Kind kind, const QString &text) {
        m_entries << Entry { kind, text };
        return m_answers.isEmpty() ? false : m_answers.takeFirst();
    });
}

MessageLog::~MessageLog()
{
    Message::setResponder(nullptr);
}

QStringList MessageLog::texts() const
{
    QStringList all;
    for (const Entry &entry : m_entries)
        all << entry.text;
    return all;
}
