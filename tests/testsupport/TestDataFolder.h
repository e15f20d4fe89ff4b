#pragma once

#include <QString>
#include <QTemporaryDir>

// A private program folder with a fresh "xsmm.dat", opened as at start-up and closed again
// when the folder goes away. The parameter set starts as a new process's.
class TestDataFolder
{
public:
    TestDataFolder();
    ~TestDataFolder();
    TestDataFolder(const TestDataFolder &) = delete;
    TestDataFolder &operator=(const TestDataFolder &) = delete;

    bool isReady() const { return m_ready; }
    QString path() const { return m_dir.path(); }
    QString dataFile() const;

private:
    QTemporaryDir m_dir;
    bool m_ready = false;
};
