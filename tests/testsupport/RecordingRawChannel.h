#pragma once

#include "printing/RawChannel.h"

#include <QList>

// A raw channel that keeps what a printer would have received, call by call.
class RecordingRawChannel : public RawChannel
{
public:
    struct Log
    {
        QString printer;
        QString title;
        QList<QByteArray> writes;
        int opens = 0;
        int closes = 0;
        int pageStarts = 0;
        int pageEnds = 0;
        QByteArray bytes() const;
    };

    explicit RecordingRawChannel(Log *log, bool printerExists = true);
    bool open(const QString &printer, const QString &title) override;
    bool write(const QByteArray &bytes) override;
    bool newPage() override;
    bool endPage() override;
    bool close() override;
    QString failure() const override { return QStringLiteral("yazıcı bulunamadı"); }

private:
    Log *m_log;
    bool m_printerExists;
};
