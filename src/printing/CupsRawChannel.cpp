#include "printing/CupsRawChannel.h"

#include "printing/CupsPrinters.h"

#include <cups/cups.h>

bool CupsRawChannel::open(const QString &printer, const QString &title)
{
    if (!InstalledPrinters().contains(printer))
        return false;
    m_printer = printer.toUtf8();
    const QByteArray name = title.toUtf8();
    m_job = cupsCreateJob(CUPS_HTTP_DEFAULT, m_printer.constData(), name.constData(), 0, nullptr);
    if (m_job == 0)
        return false;
    if (cupsStartDocument(CUPS_HTTP_DEFAULT, m_printer.constData(), m_job, name.constData(), CUPS_FORMAT_RAW, 1)
        != HTTP_STATUS_CONTINUE) {
        cupsCancelJob2(CUPS_HTTP_DEFAULT, m_printer.constData(), m_job, 0);
        m_job = 0;
        return false;
    }
    return true;
}

bool CupsRawChannel::write(const QByteArray &bytes)
{
    return m_job != 0
        && cupsWriteRequestData(CUPS_HTTP_DEFAULT, bytes.constData(), size_t(bytes.size())) == HTTP_STATUS_CONTINUE;
}

bool CupsRawChannel::close()
{
    if (m_job == 0)
        return false;
    m_job = 0;
    return cupsFinishDocument(CUPS_HTTP_DEFAULT, m_printer.constData()) == IPP_STATUS_OK;
}
