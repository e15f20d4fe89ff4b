#pragma once

#include "printing/RawChannel.h"

// The raw channel through the CUPS spooler: one job of type application/vnd.cups-raw, so no
// filter touches the bytes.
class CupsRawChannel : public RawChannel
{
public:
    bool open(const QString &printer, const QString &title) override;
    bool write(const QByteArray &bytes) override;
    bool newPage() override { return isOpen(); }
    bool endPage() override { return isOpen(); }
    bool close() override;
    QString failure() const override { return m_failure; }

private:
    bool fail(const QString &why);
    bool isOpen();

    QByteArray m_printer;
    int m_job = 0;
    QString m_failure;
};
