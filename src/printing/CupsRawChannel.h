#pragma once

#include "printing/RawChannel.h"

// The raw channel through the CUPS spooler: one job of type application/vnd.cups-raw, so no
// filter touches the bytes.
class CupsRawChannel : public RawChannel
{
public:
    bool open(const QString &printer, const QString &title) override;
    bool write(const QByteArray &bytes) override;
    bool newPage() override { return m_job != 0; }
    bool endPage() override { return m_job != 0; }
    bool close() override;

private:
    QByteArray m_printer;
    int m_job = 0;
};
