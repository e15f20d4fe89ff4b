#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>

#include <utility>
#include <vector>

// An e-SMM written for the tests from the published structure of the documents. Amounts are
// written as given: a test states what the document says. The default is today's usual receipt:
// gross 1,000.00, stopaj 20 % = 200.00, VAT 20 % = 200.00, nothing withheld.
struct SampleEsmm
{
    QString ettn = QStringLiteral("6f1c2a4e-0000-4000-8000-000000000001");
    QString number = QStringLiteral("GIB2026000000001");
    QDate date = QDate(2026, 11, 16);
    QString issuer = QStringLiteral("1111111111");
    QString payerId = QStringLiteral("2222222222");
    QString payerName = QStringLiteral("Alıcı Danışmanlık A.Ş.");
    QString taxOffice = QStringLiteral("Çankaya");
    QString line = QStringLiteral("Hukuki danışmanlık");
    QString gross = QStringLiteral("1000.00");
    QString stopaj = QStringLiteral("200.00"), stopajRate = QStringLiteral("20");
    QString kdv = QStringLiteral("200.00"), kdvRate = QStringLiteral("20");
    QString withheld, withheldRate; // empty: no tevkifat element
    QString total = QStringLiteral("1200.00"), payable = QStringLiteral("1000.00"), taxes = QStringLiteral("400.00");
    QString currency = QStringLiteral("TRY");
    QString otherTaxCode; // a third tax of that code on the lines
};

QByteArray EsmmXml(const SampleEsmm &sample);
// The n-th of a run of distinct documents (its own ETTN and number), otherwise the sample.
SampleEsmm NumberedEsmm(int n, const SampleEsmm &sample = SampleEsmm());
// A ZIP file of the named entries; false when it could not be written.
bool WriteZip(const QString &path, const std::vector<std::pair<QString, QByteArray>> &entries);
// The bytes of such a ZIP file, to put inside another ("" when it could not be made).
QByteArray ZipBytes(const std::vector<std::pair<QString, QByteArray>> &entries);
