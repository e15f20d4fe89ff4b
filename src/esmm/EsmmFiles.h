#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

// One XML text found under the paths given, why a file or an entry could not be read, or why
// one was left unread.
struct EsmmFile
{
    QString origin; // the file, and for an entry of a ZIP file "file.zip:entry" (nested: "a.zip:b.zip:c.xml")
    QByteArray xml;
    QString error;
    QString skipped; // an entry that is neither a document nor a ZIP file, with what it is
};

// No document is larger, no ZIP file inside a ZIP file is larger or lies deeper, and all ZIP
// files of one run hold no more entries: beyond them a file is refused with its reason, so that
// a hostile file cannot take the machine's memory.
constexpr qint64 MaxEsmmBytes = 4 * 1024 * 1024;
constexpr qint64 MaxInnerZipBytes = 64 * 1024 * 1024;
constexpr int MaxZipDepth = 3;
constexpr qint64 MaxZipEntries = 100000;

// Hands every XML file and every XML entry of a ZIP file (and of the ZIP files inside it) under
// the paths (files, or folders with their subfolders) to `found`, one at a time, in name order.
// Only regular files are read; what archivers add beside the documents (__MACOSX/, ._ files,
// .DS_Store, Thumbs.db) is passed over quietly; any other entry is reported as skipped. Only
// reads: nothing is ever written, whatever the names inside a ZIP file say.
void ReadEsmmFiles(const QStringList &paths, const std::function<void(const EsmmFile &)> &found);
