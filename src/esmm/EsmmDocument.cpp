#include "esmm/EsmmDocument.h"

#include <QUuid>
#include <QXmlStreamReader>

#include <cmath>
#include <vector>

namespace {

// An ETTN as one text however it is written: a UUID in lower case without braces, blanks left out.
QString ettnKey(const QString &text)
{
    QString bare;
    for (const QChar c : text)
        if (!c.isSpace())
            bare += c;
    const QUuid uuid = QUuid::fromString(bare);
    return uuid.isNull() ? bare.toLower() : uuid.toString(QUuid::WithoutBraces);
}

const QString esmmNamespace = QStringLiteral("http://earsiv.efatura.gov.tr");

// One vergi or tevkifat element: a tax on a base, or the part of the VAT the payer withholds.
struct Tax
{
    bool withholding = false;
    QString code;
    std::optional<Currency> base;
    Currency amount;
    int percent = 0;
};

class DocumentReader
{
public:
    DocumentReader(const QByteArray &xml, EsmmDocument *document)
        : m_xml(xml)
        , m_document(document)
    {
    }

    bool read(QString *why);

private:
    bool startElement();
    void endElement();
    bool leaf(QStringView name, const QString &text);
    bool amount(QStringView name, const QString &text, Currency *into);
    bool taxLeaf(QStringView name, const QString &text);
    bool under(QStringView name) const { return m_path.contains(name); }
    QStringView parent() const { return m_path.size() > 1 ? QStringView(m_path[m_path.size() - 2]) : QStringView(); }
    void settle();

    QXmlStreamReader m_xml;
    EsmmDocument *m_document;
    QStringList m_path; // the open elements' local names
    std::vector<Tax> m_documentTaxes, m_lineTaxes;
    Tax m_tax;
    Currency m_linesGross;
    bool m_linesHaveGross = false;
    bool m_isReceipt = false;
    QString m_error;
};

bool DocumentReader::read(QString *why)
{
    while (m_error.isEmpty() && !m_xml.atEnd()) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::DTD:
            m_error = QStringLiteral("belge tür tanımı (DTD) içeriyor");
            break;
        case QXmlStreamReader::StartElement:
            startElement();
            break;
        case QXmlStreamReader::EndElement:
            endElement();
            break;
        default:
            break;
        }
    }
    if (m_error.isEmpty() && m_xml.hasError())
        m_error = QStringLiteral("XML hatası (satır %1)").arg(m_xml.lineNumber());
    if (m_error.isEmpty() && !m_isReceipt)
        m_error = QStringLiteral("e-SMM değil");
    if (!m_error.isEmpty()) {
        *why = m_error;
        return false;
    }
    settle();
    return true;
}

bool DocumentReader::startElement()
{
    const QString name = m_xml.name().toString();
    if (m_path.isEmpty() && (name != u"eArsivVeri" || m_xml.namespaceUri() != esmmNamespace)) {
        m_error = QStringLiteral("e-SMM değil");
        return false;
    }
    m_path << name;
    if (name == u"serbestMeslekMakbuz") {
        if (m_isReceipt) { // never merged into one
            m_error = QStringLiteral("dosyada birden çok makbuz var");
            return false;
        }
        m_isReceipt = true;
    }
    if (name == u"vergi" || name == u"tevkifat") {
        m_tax = Tax();
        m_tax.withholding = name == u"tevkifat";
        return true;
    }
    static const QStringList leaves = { QStringLiteral("makbuzNo"), QStringLiteral("ETTN"),
        QStringLiteral("belgeTarihi"), QStringLiteral("paraBirimi"), QStringLiteral("toplamTutar"),
        QStringLiteral("odenecekTutar"), QStringLiteral("vergilerToplami"), QStringLiteral("vkn"),
        QStringLiteral("tckn"), QStringLiteral("unvan"), QStringLiteral("adiSoyadi"), QStringLiteral("vDaire"),
        QStringLiteral("ad"), QStringLiteral("burutUcret"), QStringLiteral("matrah"), QStringLiteral("vergiKodu"),
        QStringLiteral("vergiTutari"), QStringLiteral("vergiOrani"), QStringLiteral("tevkifatKodu"),
        QStringLiteral("tevkifatTutari"), QStringLiteral("tevkifatOrani"), QStringLiteral("kdvTahakkukIcin") };
    if (!leaves.contains(name))
        return true;
    const QString text = m_xml.readElementText(QXmlStreamReader::SkipChildElements).trimmed();
    const bool read = leaf(name, text);
    m_path.removeLast(); // the element's end was read with its text
    return read;
}

void DocumentReader::endElement()
{
    const QString name = m_path.isEmpty() ? QString() : m_path.takeLast();
    if (name == u"vergi" || name == u"tevkifat")
        (under(u"malHizmet") ? m_lineTaxes : m_documentTaxes).push_back(m_tax);
}

bool DocumentReader::amount(QStringView name, const QString &text, Currency *into)
{
    bool ok = false;
    *into = Currency::fromString(text, &ok);
    if (!ok)
        m_error = QStringLiteral("%1 okunamadı: \"%2\"").arg(name, text.left(20));
    return ok;
}

bool DocumentReader::leaf(QStringView name, const QString &text)
{
    EsmmDocument &d = *m_document;
    if (under(u"vergi") || under(u"tevkifat"))
        return taxLeaf(name, text);
    if (under(u"malHizmet")) {
        if (name == u"ad" && d.firstLine.isEmpty())
            d.firstLine = text;
        if (name != u"burutUcret")
            return true;
        Currency line;
        if (!amount(name, text, &line))
            return false;
        m_linesGross += line;
        m_linesHaveGross = true;
        return true;
    }
    if (under(u"aliciBilgileri")) {
        if (name == u"vkn" || name == u"tckn")
            d.payerId = text;
        else if (name == u"unvan" || name == u"adiSoyadi")
            d.payerName = text;
        else if (name == u"vDaire")
            d.payerTaxOffice = text;
        return true;
    }
    if ((name == u"vkn" || name == u"tckn") && under(u"mukellef")) {
        d.issuer = text;
        return true;
    }
    if (name == u"kdvTahakkukIcin") {
        d.vatAccrualOnly = text == u"true" || text == u"1";
        return true;
    }
    if (parent() != u"serbestMeslekMakbuz" && name != u"vergilerToplami")
        return true;
    if (name == u"makbuzNo")
        d.makbuzNo = text;
    else if (name == u"ETTN")
        d.ettn = ettnKey(text);
    else if (name == u"belgeTarihi") {
        d.dateText = text;
        d.date = QDate::fromString(text.left(10), Qt::ISODate);
    } else if (name == u"paraBirimi")
        d.currency = text.toUpper();
    else {
        Currency stated;
        if (!amount(name, text, &stated))
            return false;
        (name == u"toplamTutar" ? d.statedTotal : name == u"odenecekTutar" ? d.statedPayable : d.statedTaxes) = stated;
    }
    return true;
}

bool DocumentReader::taxLeaf(QStringView name, const QString &text)
{
    if (name == u"vergiKodu" || name == u"tevkifatKodu") {
        m_tax.code = text;
    } else if (name == u"vergiOrani" || name == u"tevkifatOrani") {
        m_tax.percent = int(std::lround(text.toDouble()));
    } else if (name == u"matrah") {
        Currency base;
        if (!amount(name, text, &base))
            return false;
        m_tax.base = base;
    } else if (name == u"vergiTutari" || name == u"tevkifatTutari") {
        return amount(name, text, &m_tax.amount);
    }
    return true;
}

// The stopaj, VAT and withheld VAT of a list of taxes.
EsmmDocument::Taxes sumOf(const std::vector<Tax> &taxes)
{
    EsmmDocument::Taxes sums;
    for (const Tax &tax : taxes) {
        if (tax.withholding)
            sums.withheld += tax.amount;
        else if (tax.code == u"0003")
            sums.stopaj += tax.amount;
        else if (tax.code == u"0015")
            sums.kdv += tax.amount;
    }
    return sums;
}

// The document's own taxes where it states them, else those of its lines.
void DocumentReader::settle()
{
    EsmmDocument &d = *m_document;
    if (d.currency.isEmpty())
        d.currency = QStringLiteral("TRY");
    const std::vector<Tax> &taxes = m_documentTaxes.empty() ? m_lineTaxes : m_documentTaxes;
    const EsmmDocument::Taxes sums = sumOf(taxes);
    d.stopaj = sums.stopaj;
    d.kdv = sums.kdv;
    d.withheld = sums.withheld;
    std::optional<Currency> vatBase, stopajBase;
    for (const Tax &tax : taxes) {
        if (tax.withholding) {
            d.withheldPercent = d.withheldPercent != 0 ? d.withheldPercent : tax.percent;
            d.withheldCode = d.withheldCode.isEmpty() ? tax.code : d.withheldCode;
        } else if (tax.code == u"0003") {
            stopajBase = stopajBase ? stopajBase : tax.base;
        } else if (tax.code == u"0015") {
            vatBase = vatBase ? vatBase : tax.base;
        } else if (!d.otherTaxCodes.contains(tax.code)) {
            d.otherTaxCodes << tax.code;
        }
    }
    if (!m_documentTaxes.empty() && !m_lineTaxes.empty())
        d.lineTaxes = sumOf(m_lineTaxes);
    d.gross = m_linesHaveGross ? m_linesGross : vatBase.value_or(stopajBase.value_or(Currency()));
}

} // namespace

QDate FirstEsmmDay()
{
    return QDate(2019, 10, 19);
}

bool ReadEsmmDocument(const QByteArray &xml, EsmmDocument *document, QString *why)
{
    *document = EsmmDocument();
    return DocumentReader(xml, document).read(why);
}
