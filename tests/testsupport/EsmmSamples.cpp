#include "testsupport/EsmmSamples.h"

#include <QFile>
#include <QTemporaryDir>

#include <zip.h>

namespace {

QString element(const QString &name, const QString &text)
{
    return QStringLiteral("<%1>%2</%1>").arg(name, text.toHtmlEscaped());
}

QString tax(const QString &base, const QString &code, const QString &amount, const QString &rate)
{
    return QStringLiteral("<vergi>") + element(QStringLiteral("matrah"), base)
        + element(QStringLiteral("vergiKodu"), code) + element(QStringLiteral("vergiTutari"), amount)
        + element(QStringLiteral("vergiOrani"), rate) + QStringLiteral("</vergi>");
}

} // namespace

QByteArray EsmmXml(const SampleEsmm &s)
{
    QString taxes = tax(s.gross, QStringLiteral("0003"), s.stopaj, s.stopajRate)
        + tax(s.gross, QStringLiteral("0015"), s.kdv, s.kdvRate);
    if (!s.otherTaxCode.isEmpty())
        taxes += tax(s.gross, s.otherTaxCode, QStringLiteral("10.00"), QStringLiteral("1"));
    if (!s.withheld.isEmpty())
        taxes += QStringLiteral("<tevkifat>") + element(QStringLiteral("tevkifatKodu"), QStringLiteral("616"))
            + element(QStringLiteral("tevkifatTutari"), s.withheld)
            + element(QStringLiteral("tevkifatOrani"), s.withheldRate) + QStringLiteral("</tevkifat>");
    const QString xml
        = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                         "<eArsivVeri xmlns=\"http://earsiv.efatura.gov.tr\">"
                         "<baslik><mukellef>%1</mukellef><hazirlayan>%1</hazirlayan></baslik>"
                         "<serbestMeslekMakbuz>%2%3%4%5%6%7%8%9")
              .arg(element(QStringLiteral("vkn"), s.issuer), element(QStringLiteral("makbuzNo"), s.number),
                  element(QStringLiteral("ETTN"), s.ettn),
                  element(QStringLiteral("gonderimSekli"), QStringLiteral("ELEKTRONIK")),
                  element(QStringLiteral("belgeTarihi"), s.date.toString(Qt::ISODate)),
                  element(QStringLiteral("toplamTutar"), s.total), element(QStringLiteral("odenecekTutar"), s.payable),
                  element(QStringLiteral("paraBirimi"), s.currency), element(QStringLiteral("kur"), "1"))
        + QStringLiteral("<vergiBilgisi>") + element(QStringLiteral("vergilerToplami"), s.taxes) + taxes
        + QStringLiteral("</vergiBilgisi><aliciBilgileri><tuzelKisi>") + element(QStringLiteral("vkn"), s.payerId)
        + element(QStringLiteral("unvan"), s.payerName) + QStringLiteral("</tuzelKisi><adres>")
        + element(QStringLiteral("vDaire"), s.taxOffice) + QStringLiteral("</adres></aliciBilgileri>")
        + QStringLiteral("<malHizmetBilgisi><malHizmet>") + element(QStringLiteral("ad"), s.line)
        + QStringLiteral("<vergiBilgisi>") + taxes + QStringLiteral("</vergiBilgisi>")
        + element(QStringLiteral("burutUcret"), s.gross)
        + QStringLiteral("</malHizmet></malHizmetBilgisi></serbestMeslekMakbuz></eArsivVeri>\n");
    return xml.toUtf8();
}

SampleEsmm NumberedEsmm(int n, const SampleEsmm &sample)
{
    SampleEsmm numbered = sample;
    numbered.ettn = QStringLiteral("6f1c2a4e-0000-4000-8000-%1").arg(n, 12, 10, QLatin1Char('0'));
    numbered.number = QStringLiteral("GIB2026%1").arg(n, 9, 10, QLatin1Char('0'));
    return numbered;
}

bool WriteZip(const QString &path, const std::vector<std::pair<QString, QByteArray>> &entries)
{
    int error = 0;
    zip_t *archive = zip_open(QFile::encodeName(path).constData(), ZIP_CREATE | ZIP_TRUNCATE, &error);
    if (!archive)
        return false;
    for (const auto &[name, data] : entries) {
        zip_source_t *source = zip_source_buffer(archive, data.constData(), zip_uint64_t(data.size()), 0);
        if (!source || zip_file_add(archive, name.toUtf8().constData(), source, ZIP_FL_ENC_UTF_8) < 0) {
            zip_source_free(source);
            zip_discard(archive);
            return false;
        }
    }
    return zip_close(archive) == 0;
}

QByteArray ZipBytes(const std::vector<std::pair<QString, QByteArray>> &entries)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("a.zip"));
    QFile zip(path);
    return WriteZip(path, entries) && zip.open(QIODevice::ReadOnly) ? zip.readAll() : QByteArray();
}
