#include "testsupport/RecordingRawChannel.h"

QByteArray RecordingRawChannel::Log::bytes() const
{
    QByteArray all;
    for (const QByteArray &write : writes)
        all += write;
    return all;
}

RecordingRawChannel::RecordingRawChannel(Log *log, bool printerExists)
    : m_log(log)
    , m_printerExists(printerExists)
{
}

bool RecordingRawChannel::open(const QString &printer, const QString &title)
{
    if (!m_printerExists)
        return false;
    m_log->printer = printer;
    m_log->title = title;
    ++m_log->opens;
    return true;
}

bool RecordingRawChannel::write(const QByteArray &bytes)
{
    m_log->writes << bytes;
    return true;
}

bool RecordingRawChannel::newPage()
{
    ++m_log->pageStarts;
    return true;
}

bool RecordingRawChannel::endPage()
{
    ++m_log->pageEnds;
    return true;
}

bool RecordingRawChannel::close()
{
    ++m_log->closes;
    return true;
}
