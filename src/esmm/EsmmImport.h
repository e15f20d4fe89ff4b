#pragma once

#include "esmm/EsmmDocument.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

class KeptEsmms;
class PayerCards;

// What became of a document found.
enum class EsmmStatus {
    New, // "Yeni": adds up, not yet in the books
    Known, // "Kayıtlı": its ETTN is in the books (or came earlier in this run)
    Mismatch, // "Uyuşmuyor: …": held back, with the reason
    Unreadable, // "Okunamadı: …": not an e-SMM, or the file could not be read
    Incomplete, // "Eksik: …": an e-SMM without its ETTN, number or date
    Foreign, // "Döviz: …": in another currency
    Conflict, // "Çakışma: …": its ETTN or its number is in the books (or came earlier) with other contents
    Posted, // "Aktarıldı": posted by this run
    Skipped, // "Atlandı: …": a file beside the documents, neither an e-SMM nor a ZIP file
};
constexpr int EsmmStatusCount = 9;

// The status's name: "Yeni", "Kayıtlı", "Uyuşmuyor", "Okunamadı", "Eksik", "Döviz", "Çakışma",
// "Aktarıldı", "Atlandı".
QString EsmmStatusName(EsmmStatus status);

// What the payer owes on the document, as the receipt screen computes a receipt's total: the net
// fee (gross less withholding, no fund) with the VAT, less the VAT the payer withholds.
Currency AmountDue(const EsmmDocument &document);

// An amount as the statuses and the command line show it: grouped, with two decimals and its
// leading zero ("0.13", "0.00", "1,234.50").
QString EsmmAmountText(Currency amount);

struct EsmmRow
{
    QString origin;
    EsmmDocument document;
    EsmmStatus status = EsmmStatus::New;
    QString reason;
    QString newCard; // the code of the card made for its payer
    // "Yeni", "Kayıtlı", "Uyuşmuyor: …", "Okunamadı: …", "Eksik: …", "Döviz: …", "Çakışma: …",
    // "Aktarıldı (yeni cari …)", "Atlandı: …".
    QString statusText() const;
};

// One import run over the open books: the documents found under the paths, checked, and the new
// ones posted as the receipt screen posts a receipt (account, ledger, the receipt's own record),
// each exactly once.
class EsmmImport
{
public:
    // Reads and checks every document under the paths; adds a row for each.
    void read(const QStringList &paths);
    // Posts the new rows in one transaction, with a card for each payer not known by its tax
    // number: all of them or, on a failure (its reason in `why`), none.
    bool post(QString *why);

    const std::vector<EsmmRow> &rows() const { return m_rows; }
    int count(EsmmStatus status) const;
    // "3 Yeni, 1 Kayıtlı, …": the statuses that occur, in their order.
    QString summary() const;

private:
    void classify(EsmmRow &row, KeptEsmms &kept);
    void check(EsmmRow &row);
    bool postRow(EsmmRow &row, PayerCards &cards);

    std::vector<EsmmRow> m_rows;
    QHash<QString, EsmmDocument> m_new; // the documents found new, by ETTN
    QHash<QString, QString> m_numbers; // their ETTNs by issuer and number
};
