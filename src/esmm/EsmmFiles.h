#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

// One XML text found under the paths given, or why a file or an entry could not be read.
struct EsmmFile
{
    QString origin; // the file, and for an entry of a ZIP file "file.zip:entry"
    QByteArray xml;
    QString error;
};

// No document is larger, and no ZIP file holds more entries: beyond them a file is refused
// with its reason, so that a hostile file cannot take the machine's memory.
constexpr qint64 MaxEsmmBytes = 4 * 1024 * 1024;
constexpr qint64 MaxZipEntries = 100000;

// Hands every XML file and every XML entry of a ZIP file under the paths (files, or folders
// with their subfolders) to `found`, one at a time, in name order. Only reads: nothing is ever
// written, whatever the names inside a ZIP file say.
void ReadEsmmFiles(const QStringList &paths, const std::function<void(const EsmmFile &)> &found);
