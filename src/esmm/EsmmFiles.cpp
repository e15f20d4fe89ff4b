#include "esmm/EsmmFiles.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <zip.h>

#include <memory>

namespace {

struct ZipCloser
{
    void operator()(zip_t *archive) const { zip_discard(archive); }
};
struct EntryCloser
{
    void operator()(zip_file_t *entry) const { zip_fclose(entry); }
};

bool isXmlName(const QString &name)
{
    return name.endsWith(QStringLiteral(".xml"), Qt::CaseInsensitive);
}

bool looksLikeZip(const QString &path)
{
    QFile file(path);
    return path.endsWith(QStringLiteral(".zip"), Qt::CaseInsensitive)
        || (file.open(QIODevice::ReadOnly) && file.read(2) == "PK");
}

// At most MaxEsmmBytes of an entry; an entry that is longer, or damaged, is an error.
EsmmFile readEntry(zip_t *archive, zip_uint64_t index, const QString &origin)
{
    EsmmFile found { origin, {}, {} };
    const std::unique_ptr<zip_file_t, EntryCloser> entry(zip_fopen_index(archive, index, 0));
    if (!entry) {
        found.error = QStringLiteral("ZIP girdisi açılamadı");
        return found;
    }
    found.xml.resize(MaxEsmmBytes + 1);
    qint64 size = 0;
    zip_int64_t part = 0;
    while (size <= MaxEsmmBytes
        && (part = zip_fread(entry.get(), found.xml.data() + size, zip_uint64_t(found.xml.size() - size))) > 0)
        size += part;
    if (part < 0)
        found.error = QStringLiteral("ZIP girdisi bozuk");
    else if (size > MaxEsmmBytes)
        found.error = QStringLiteral("belge 4 MB'tan büyük");
    found.xml.resize(found.error.isEmpty() ? size : 0);
    return found;
}

void readZip(const QString &path, const std::function<void(const EsmmFile &)> &found)
{
    int error = 0;
    const std::unique_ptr<zip_t, ZipCloser> archive(
        zip_open(QFile::encodeName(path).constData(), ZIP_RDONLY | ZIP_CHECKCONS, &error));
    if (!archive) {
        found({ path, {}, QStringLiteral("ZIP dosyası okunamadı (bozuk ya da eksik)") });
        return;
    }
    const zip_int64_t count = zip_get_num_entries(archive.get(), 0);
    if (count > MaxZipEntries) {
        found({ path, {}, QStringLiteral("ZIP dosyasında %1'den fazla girdi var").arg(MaxZipEntries) });
        return;
    }
    QStringList names;
    for (zip_int64_t i = 0; i < count; ++i)
        names << QString::fromUtf8(zip_get_name(archive.get(), zip_uint64_t(i), 0));
    for (zip_int64_t i = 0; i < count; ++i)
        if (isXmlName(names[int(i)]))
            found(readEntry(archive.get(), zip_uint64_t(i), path + u':' + names[int(i)]));
}

void readXml(const QString &path, const std::function<void(const EsmmFile &)> &found)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        found({ path, {}, QStringLiteral("dosya açılamadı") });
        return;
    }
    if (file.size() > MaxEsmmBytes) {
        found({ path, {}, QStringLiteral("belge 4 MB'tan büyük") });
        return;
    }
    found({ path, file.readAll(), {} });
}

void readFile(const QString &path, const std::function<void(const EsmmFile &)> &found)
{
    if (looksLikeZip(path))
        readZip(path, found);
    else
        readXml(path, found);
}

} // namespace

void ReadEsmmFiles(const QStringList &paths, const std::function<void(const EsmmFile &)> &found)
{
    for (const QString &path : paths) {
        const QFileInfo info(path);
        if (!info.exists()) {
            found({ path, {}, QStringLiteral("dosya bulunamadı") });
        } else if (!info.isDir()) {
            readFile(path, found);
        } else {
            QStringList files;
            QDirIterator walk(
                path, { QStringLiteral("*.xml"), QStringLiteral("*.zip") }, QDir::Files, QDirIterator::Subdirectories);
            while (walk.hasNext())
                files << walk.next();
            files.sort();
            for (const QString &file : std::as_const(files))
                readFile(file, found);
        }
    }
}
