#pragma once

#include "books/Message.h"

#include <QList>
#include <QString>

// Takes every message box while it lives: records it and answers questions from a script
// (No when the script is empty), so that nothing waits for a person.
class MessageLog
{
public:
    struct Entry
    {
        Message::Kind kind;
        QString text;
    };

    MessageLog();
    ~MessageLog();
    MessageLog(const MessageLog &) = delete;
    MessageLog &operator=(const MessageLog &) = delete;

    void answerNext(bool yes) { m_answers << yes; }
    const QList<Entry> &entries() const { return m_entries; }
    QStringList texts() const;
    void clear() { m_entries.clear(); }

private:
    QList<Entry> m_entries;
    QList<bool> m_answers;
};
