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

bool isZipName(const QString &name)
{
    return name.endsWith(QStringLiteral(".zip"), Qt::CaseInsensitive);
}

// What archivers and file managers add beside the documents (the ._ files of __MACOSX/ among them).
bool isClutter(const QString &name)
{
    const QString file = name.section(u'/', -1);
    return file.startsWith(QStringLiteral("._")) || file == u".DS_Store"
        || file.compare(u"Thumbs.db", Qt::CaseInsensitive) == 0;
}

bool looksLikeZip(const QString &path)
{
    QFile file(path);
    return isZipName(path) || (file.open(QIODevice::ReadOnly) && file.read(2) == "PK");
}

// At most limit bytes of an entry into bytes; "" or why it could not be read (`what` is larger).
QString readBytes(zip_t *archive, zip_uint64_t index, qint64 limit, const QString &what, QByteArray *bytes)
{
    const std::unique_ptr<zip_file_t, EntryCloser> entry(zip_fopen_index(archive, index, 0));
    if (!entry)
        return QStringLiteral("ZIP girdisi açılamadı");
    bytes->resize(limit + 1);
    qint64 size = 0;
    zip_int64_t part = 0;
    while (
        size <= limit && (part = zip_fread(entry.get(), bytes->data() + size, zip_uint64_t(bytes->size() - size))) > 0)
        size += part;
    bytes->resize(part < 0 || size > limit ? 0 : size);
    if (part < 0)
        return QStringLiteral("ZIP girdisi bozuk");
    if (size > limit)
        return QStringLiteral("%1 %2 MB'tan büyük").arg(what).arg(limit / (1024 * 1024));
    return QString();
}

// One run's walk over the paths: the entries of every ZIP file it opens count against one limit.
class EsmmWalk
{
public:
    explicit EsmmWalk(const std::function<void(const EsmmFile &)> &found)
        : m_found(found)
    {
    }

    void readPath(const QString &path)
    {
        const QFileInfo info(path);
        if (!info.exists() && !info.isSymLink()) {
            m_found({ path, {}, QStringLiteral("dosya bulunamadı"), {} });
        } else if (!info.isDir()) {
            readFile(path);
        } else {
            QStringList files;
            QDirIterator walk(
                path, { QStringLiteral("*.xml"), QStringLiteral("*.zip") }, QDir::Files, QDirIterator::Subdirectories);
            while (walk.hasNext())
                files << walk.next();
            files.sort();
            for (const QString &file : std::as_const(files))
                if (!isClutter(file))
                    readFile(file);
        }
    }

private:
    // A regular file only: a FIFO would block the run, a device (or a link to one) never end.
    void readFile(const QString &path)
    {
        if (!QFileInfo(path).isFile()) {
            m_found({ path, {}, QStringLiteral("düzenli bir dosya değil"), {} });
            return;
        }
        if (looksLikeZip(path)) {
            int error = 0;
            const std::unique_ptr<zip_t, ZipCloser> archive(
                zip_open(QFile::encodeName(path).constData(), ZIP_RDONLY | ZIP_CHECKCONS, &error));
            readZip(archive.get(), path, 1);
            return;
        }
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            m_found({ path, {}, QStringLiteral("dosya açılamadı"), {} });
            return;
        }
        const QByteArray xml = file.read(MaxEsmmBytes + 1);
        if (xml.size() > MaxEsmmBytes)
            m_found({ path, {}, QStringLiteral("belge 4 MB'tan büyük"), {} });
        else
            m_found({ path, xml, {}, {} });
    }

    void readZip(zip_t *archive, const QString &origin, int depth)
    {
        if (!archive) {
            m_found({ origin, {}, QStringLiteral("ZIP dosyası okunamadı (bozuk ya da eksik)"), {} });
            return;
        }
        const zip_int64_t count = zip_get_num_entries(archive, 0);
        m_entries += count;
        if (m_entries > MaxZipEntries) {
            m_found({ origin, {}, QStringLiteral("ZIP dosyalarında toplam %1'den fazla girdi var").arg(MaxZipEntries),
                {} });
            return;
        }
        for (zip_int64_t i = 0; i < count; ++i) {
            const QString name = QString::fromUtf8(zip_get_name(archive, zip_uint64_t(i), 0));
            if (!name.endsWith(u'/') && !isClutter(name))
                readEntry(archive, zip_uint64_t(i), origin + u':' + name, name, depth);
        }
    }

    void readEntry(zip_t *archive, zip_uint64_t index, const QString &origin, const QString &name, int depth)
    {
        if (!isXmlName(name) && !isZipName(name)) {
            m_found({ origin, {}, {}, QStringLiteral("e-SMM ya da ZIP dosyası değil") });
            return;
        }
        if (isZipName(name) && depth >= MaxZipDepth) {
            m_found({ origin, {}, QStringLiteral("ZIP dosyası %1 kattan derinde").arg(MaxZipDepth), {} });
            return;
        }
        QByteArray bytes;
        const QString error = isXmlName(name)
            ? readBytes(archive, index, MaxEsmmBytes, QStringLiteral("belge"), &bytes)
            : readBytes(archive, index, MaxInnerZipBytes, QStringLiteral("ZIP dosyası"), &bytes);
        if (!error.isEmpty() || isXmlName(name)) {
            m_found({ origin, bytes, error, {} });
            return;
        }
        zip_error_t failure;
        zip_error_init(&failure);
        zip_source_t *source = zip_source_buffer_create(bytes.constData(), zip_uint64_t(bytes.size()), 0, &failure);
        zip_t *inner = source ? zip_open_from_source(source, ZIP_RDONLY | ZIP_CHECKCONS, &failure) : nullptr;
        if (source && !inner)
            zip_source_free(source);
        zip_error_fini(&failure);
        const std::unique_ptr<zip_t, ZipCloser> archiveInside(inner);
        readZip(inner, origin, depth + 1);
    }

    const std::function<void(const EsmmFile &)> &m_found;
    qint64 m_entries = 0;
};

} // namespace

void ReadEsmmFiles(const QStringList &paths, const std::function<void(const EsmmFile &)> &found)
{
    EsmmWalk walk(found);
    for (const QString &path : paths)
        walk.readPath(path);
}
