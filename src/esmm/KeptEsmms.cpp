#include "esmm/KeptEsmms.h"

#include "books/DataFiles.h"
#include "money/DayNumber.h"

#include <QStringList>

// Books of earlier versions kept an ETTN written with braces in its braces.
KeptEsmms::KeptEsmms()
    : m_byEttn(dataFiles().db->handle(),
        QStringLiteral("SELECT m.makbuzno, m.vkn, d.tarih, d.brut, d.stopaj, d.kdv, m.tevkifat, k.vn FROM makbuz m "
                       "LEFT JOIN defter d ON d.oto = m.defter LEFT JOIN carkart k ON k.kod = d.cari "
                       "WHERE m.ettn = ?1 OR m.ettn = '{' || ?1 || '}'"))
    , m_byNumber(dataFiles().db->handle(),
          QStringLiteral("SELECT ettn FROM makbuz WHERE makbuzno = ?1 AND vkn = ?2 AND ettn IS NOT NULL "
                         "AND ettn <> ?3 AND ettn <> '{' || ?3 || '}'"))
{
}

std::optional<EsmmDocument> KeptEsmms::find(const QString &ettn)
{
    m_byEttn.reset();
    if (!m_byEttn.bind(1, ettn) || !m_byEttn.next())
        return std::nullopt;
    EsmmDocument kept;
    kept.ettn = ettn;
    kept.makbuzNo = m_byEttn.columnText(0);
    kept.issuer = m_byEttn.columnText(1);
    if (m_byEttn.columnKind(2) != Statement::Kind::Null) // else its ledger row was deleted
        kept.date = DateFromDayNumber(m_byEttn.columnInteger(2));
    Currency *amounts[] = { &kept.gross, &kept.stopaj, &kept.kdv, &kept.withheld };
    for (int i = 0; i < 4; ++i)
        *amounts[i] = Currency::fromRaw(m_byEttn.columnInteger(3 + i));
    kept.payerId = m_byEttn.columnText(7).trimmed();
    return kept;
}

QString KeptEsmms::otherEttnOfNumber(const EsmmDocument &document)
{
    m_byNumber.reset();
    return m_byNumber.bindAll({ document.makbuzNo, document.issuer, document.ettn }) && m_byNumber.next()
        ? m_byNumber.columnText(0)
        : QString();
}

QString EsmmDifferences(const EsmmDocument &kept, const EsmmDocument &found)
{
    QStringList differ;
    const std::pair<bool, const char *> checks[] = { { kept.makbuzNo != found.makbuzNo, "makbuz numarası" },
        { kept.issuer != found.issuer, "düzenleyen" },
        { !kept.payerId.isEmpty() && kept.payerId != found.payerId, "alıcı" }, { kept.date != found.date, "tarih" },
        { kept.gross != found.gross, "brüt ücret" }, { kept.stopaj != found.stopaj, "stopaj" },
        { kept.kdv != found.kdv, "KDV" }, { kept.withheld != found.withheld, "tevkifat" } };
    for (const auto &[differs, what] : checks)
        if (differs)
            differ << QString::fromUtf8(what);
    return differ.isEmpty() ? QString() : QStringLiteral("aynı ETTN, farklı ") + differ.join(QStringLiteral(", "));
}
