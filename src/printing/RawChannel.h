#pragma once

#include <QByteArray>
#include <QString>

// A raw print job on a named printer: the bytes go to the printer as they are.
class RawChannel
{
public:
    virtual ~RawChannel() = default;
    // Starts a job titled title on the printer; false when there is no such printer.
    virtual bool open(const QString &printer, const QString &title) = 0;
    virtual bool write(const QByteArray &bytes) = 0;
    virtual bool newPage() = 0;
    virtual bool endPage() = 0;
    virtual bool close() = 0;
    // Why the last call that answered false failed, in the user's words.
    virtual QString failure() const = 0;
};
