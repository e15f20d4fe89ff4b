#include "printing/CupsRawChannel.h"

#include "printing/CupsPrinters.h"

#include <cups/cups.h>

bool CupsRawChannel::fail(const QString &why)
{
    m_failure = why;
    return false;
}

bool CupsRawChannel::isOpen()
{
    return m_job != 0 || fail(QStringLiteral("yazıcı açık değil"));
}

bool CupsRawChannel::open(const QString &printer, const QString &title)
{
    if (printer.isEmpty())
        return fail(QStringLiteral("kurulu yazıcı yok"));
    if (!InstalledPrinters().contains(printer))
        return fail(QStringLiteral("yazıcı bulunamadı"));
    m_printer = printer.toUtf8();
    const QByteArray name = title.toUtf8();
    m_job = cupsCreateJob(CUPS_HTTP_DEFAULT, m_printer.constData(), name.constData(), 0, nullptr);
    if (m_job == 0)
        return fail(QStringLiteral("yazıcı kuyruğu işi kabul etmedi"));
    if (cupsStartDocument(CUPS_HTTP_DEFAULT, m_printer.constData(), m_job, name.constData(), CUPS_FORMAT_RAW, 1)
        != HTTP_STATUS_CONTINUE) {
        cupsCancelJob2(CUPS_HTTP_DEFAULT, m_printer.constData(), m_job, 0);
        m_job = 0;
        return fail(QStringLiteral("yazıcı kuyruğu işi kabul etmedi"));
    }
    return true;
}

bool CupsRawChannel::write(const QByteArray &bytes)
{
    if (!isOpen())
        return false;
    if (cupsWriteRequestData(CUPS_HTTP_DEFAULT, bytes.constData(), size_t(bytes.size())) != HTTP_STATUS_CONTINUE)
        return fail(QStringLiteral("yazı yazıcı kuyruğuna gönderilemedi"));
    return true;
}

bool CupsRawChannel::close()
{
    if (!isOpen())
        return false;
    m_job = 0;
    if (cupsFinishDocument(CUPS_HTTP_DEFAULT, m_printer.constData()) != IPP_STATUS_OK)
        return fail(QStringLiteral("yazıcı kuyruğu işi tamamlamadı"));
    return true;
}
