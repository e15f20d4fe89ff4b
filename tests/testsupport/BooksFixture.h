#pragma once

#include "testsupport/MessageLog.h"

#include <QString>
#include <QTemporaryDir>

// What a test of the books stands on: the message-box script and a private program folder with a
// fresh "xsmm.dat", opened as at start-up and closed again when the fixture goes away. The
// parameter set starts as a new process's. Make one in init() and drop it in cleanup().
class BooksFixture
{
public:
    BooksFixture();
    ~BooksFixture();
    BooksFixture(const BooksFixture &) = delete;
    BooksFixture &operator=(const BooksFixture &) = delete;

    bool isReady() const { return m_ready; }
    MessageLog &messages() { return m_messages; }
    QString path() const { return m_dir.path(); }
    QString dataFile() const;

private:
    MessageLog m_messages;
    QTemporaryDir m_dir;
    bool m_ready = false;
};
