#pragma once

#include <QByteArray>
#include <QProcess>
#include <QStringList>
#include <QTcpServer>
#include <QTemporaryDir>

#include <functional>
#include <memory>

// A CUPS scheduler of the test's own (private configuration and socket in a temporary folder)
// with one raw queue whose device is a TCP listener of this process: what the listener
// receives is exactly what a network printer would.
class PrivateSpooler
{
public:
    // queue: a raw queue to add as the default one.
    explicit PrivateSpooler(const QString &queue = QString());
    ~PrivateSpooler();
    PrivateSpooler(const PrivateSpooler &) = delete;
    PrivateSpooler &operator=(const PrivateSpooler &) = delete;

    bool isReady() const { return m_ready; }
    QString error() const { return m_error; }
    // Adds a raw queue on the listener, the spooler's default unless told otherwise.
    bool addQueue(const QString &name, bool asDefault = true);
    bool removeQueue(const QString &name);
    // Makes a queue refuse new jobs, or take them again.
    bool acceptJobs(const QString &name, bool accept);
    // The bytes received so far, over all connections.
    QByteArray received() const { return m_received; }
    // Runs print and answers the bytes that reach the printer for it, once they stop coming
    // ("" when none came within 20 s).
    QByteArray receive(const std::function<void()> &print);
    int connections() const { return m_connections; }
    QStringList jobTitles() const;

private:
    bool run(const QString &program, const QStringList &arguments);
    bool writeConfiguration();

    QTemporaryDir m_dir;
    QString m_socket;
    QProcess m_cupsd;
    QTcpServer m_listener;
    QByteArray m_received;
    int m_connections = 0;
    bool m_ready = false;
    QString m_error;
};
