#include "testsupport/PrivateSpooler.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTcpSocket>
#include <QtTest>

#include <cups/cups.h>

namespace {

bool writeText(const QString &path, const QString &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) >= 0;
}

} // namespace

PrivateSpooler::PrivateSpooler(const QString &queue)
{
    m_socket = m_dir.filePath(QStringLiteral("cups.sock"));
    if (!m_dir.isValid() || !writeConfiguration()) {
        m_error = QStringLiteral("cannot write the scheduler's configuration");
        return;
    }
    QObject::connect(&m_listener, &QTcpServer::newConnection, [this] {
        while (QTcpSocket *printer = m_listener.nextPendingConnection()) {
            ++m_connections;
            QObject::connect(printer, &QTcpSocket::readyRead, [this, printer] { m_received += printer->readAll(); });
            QObject::connect(printer, &QTcpSocket::disconnected, printer, &QObject::deleteLater);
        }
    });
    if (!m_listener.listen(QHostAddress::LocalHost)) {
        m_error = QStringLiteral("cannot listen on 127.0.0.1");
        return;
    }
    m_cupsd.start(QStringLiteral("/usr/sbin/cupsd"),
        { QStringLiteral("-f"), QStringLiteral("-c"), m_dir.filePath(QStringLiteral("cupsd.conf")),
            QStringLiteral("-s"), m_dir.filePath(QStringLiteral("cups-files.conf")) });
    if (!m_cupsd.waitForStarted(5000)) {
        m_error = QStringLiteral("cupsd does not start (is the cups package installed?)");
        return;
    }
    if (!QTest::qWaitFor([this] { return QFileInfo::exists(m_socket); }, 10000)) {
        m_error = QStringLiteral("the private scheduler makes no socket");
        return;
    }
    cupsSetServer(m_socket.toUtf8().constData());
    qputenv("CUPS_SERVER", m_socket.toUtf8());
    m_ready = run(QStringLiteral("lpstat"), { QStringLiteral("-r") });
    if (!m_ready)
        m_error = QStringLiteral("the private scheduler does not answer");
    else if (!queue.isEmpty() && !addQueue(queue))
        m_ready = false;
}

QByteArray PrivateSpooler::receive(const std::function<void()> &print)
{
    const qsizetype before = m_received.size();
    print();
    if (!QTest::qWaitFor([&] { return m_received.size() > before; }, 20000))
        return {};
    for (qsizetype size = 0; size != m_received.size();) {
        size = m_received.size();
        QTest::qWait(300);
    }
    return m_received.mid(before);
}

PrivateSpooler::~PrivateSpooler()
{
    m_cupsd.terminate();
    if (!m_cupsd.waitForFinished(5000))
        m_cupsd.kill();
    cupsSetServer(nullptr);
    qunsetenv("CUPS_SERVER");
}

bool PrivateSpooler::writeConfiguration()
{
    const QString root = m_dir.path();
    QFile::setPermissions(root,
        QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther
            | QFile::ExeOther);
    for (const char *folder : { "spool", "cache", "state", "log", "tmp", "ppd" })
        if (!QDir(root).mkpath(QString::fromLatin1(folder)))
            return false;
    const QString scheduler = QStringLiteral("Listen %1\nLogLevel warn\nDefaultAuthType None\n"
                                             "<Location />\n  Order allow,deny\n  Allow all\n</Location>\n"
                                             "<Location /admin>\n  Order allow,deny\n  Allow all\n</Location>\n"
                                             "<Policy default>\n  <Limit All>\n    Order deny,allow\n  </Limit>\n"
                                             "</Policy>\n")
                                  .arg(m_socket);
    const QString files = QStringLiteral("ServerRoot %1\nStateDir %1/state\nCacheDir %1/cache\n"
                                         "DataDir /usr/share/cups\nServerBin /usr/lib/cups\nRequestRoot %1/spool\n"
                                         "TempDir %1/tmp\nErrorLog %1/log/error_log\nAccessLog %1/log/access_log\n"
                                         "PageLog %1/log/page_log\nUser lp\nGroup lp\nSystemGroup root\n"
                                         "FileDevice No\n")
                              .arg(root);
    return writeText(m_dir.filePath(QStringLiteral("cupsd.conf")), scheduler)
        && writeText(m_dir.filePath(QStringLiteral("cups-files.conf")), files);
}

bool PrivateSpooler::run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, QStringList { QStringLiteral("-h"), m_socket } + arguments);
    return process.waitForFinished(15000) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

bool PrivateSpooler::addQueue(const QString &name, bool asDefault)
{
    return run(QStringLiteral("lpadmin"),
               { QStringLiteral("-p"), name, QStringLiteral("-E"), QStringLiteral("-v"),
                   QStringLiteral("socket://127.0.0.1:%1").arg(m_listener.serverPort()), QStringLiteral("-m"),
                   QStringLiteral("raw") })
        && (!asDefault || run(QStringLiteral("lpadmin"), { QStringLiteral("-d"), name }));
}

bool PrivateSpooler::removeQueue(const QString &name)
{
    return run(QStringLiteral("lpadmin"), { QStringLiteral("-x"), name });
}

bool PrivateSpooler::acceptJobs(const QString &name, bool accept)
{
    return run(accept ? QStringLiteral("cupsaccept") : QStringLiteral("cupsreject"), { name });
}

QStringList PrivateSpooler::jobTitles() const
{
    cups_job_t *jobs = nullptr;
    const int count = cupsGetJobs2(CUPS_HTTP_DEFAULT, &jobs, nullptr, 0, CUPS_WHICHJOBS_ALL);
    QStringList titles;
    for (int i = 0; i < count; ++i)
        titles << QString::fromUtf8(jobs[i].title);
    cupsFreeJobs(count, jobs);
    return titles;
}
