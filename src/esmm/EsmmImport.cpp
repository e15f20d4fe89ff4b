#include "esmm/EsmmImport.h"

#include "books/AccessLayer.h"
#include "books/Backups.h"
#include "books/CharacterCount.h"
#include "books/Clock.h"
#include "books/DataFiles.h"
#include "books/Parameters.h"
#include "books/Postings.h"
#include "books/Statement.h"
#include "esmm/EsmmFiles.h"
#include "esmm/KeptEsmms.h"
#include "money/AmountConventions.h"
#include "money/FormatAmount.h"
#include "money/ReceiptCalculation.h"
#include "money/RoundAmount.h"

#include <QHash>

#include <QSet>
#include <algorithm>
#include <tuple>

namespace {

// The first new document with an amount the books would not keep as it is (they keep the
// decimals "TL Onda" gives them), or nullptr: a document is posted exactly as issued or not at all.
const EsmmRow *roundedByTheBooks(const std::vector<EsmmRow> &rows)
{
    for (const EsmmRow &row : rows) {
        const EsmmDocument &d = row.document;
        if (row.status == EsmmStatus::New)
            for (const Currency amount : { d.gross, d.stopaj, d.kdv, d.withheld, AmountDue(d) })
                if (KeptAmount(amount) != amount)
                    return &row;
    }
    return nullptr;
}

// Why the document's date cannot be a receipt's date, or "": one that does not exist, one after
// today, one before e-SMMs could be issued.
QString wrongDate(const EsmmDocument &d)
{
    if (!d.date.isValid())
        return QStringLiteral("belge tarihi geçersiz (%1)").arg(d.dateText);
    if (d.date > Today())
        return QStringLiteral("belge tarihi ileride (%1)").arg(d.date.toString(u"dd.MM.yyyy"));
    if (d.date < FirstEsmmDay())
        return QStringLiteral("belge tarihi ilk e-SMM gününden önce");
    return QString();
}

// What the document states differs from what its lines and taxes give by more than a kuruş.
constexpr qint64 kurus = Currency::Scale / 100;

QString differs(const QString &what, Currency stated, Currency rebuilt)
{
    return QStringLiteral("%1 %2, hesaplanan %3").arg(what, EsmmAmountText(stated), EsmmAmountText(rebuilt));
}

bool apart(const std::optional<Currency> &stated, Currency rebuilt)
{
    return stated && ((*stated - rebuilt).magnitude().raw() > kurus || !(*stated - rebuilt).isValid());
}

// Why a document that reads well does not add up, or "" when it does. The document's total is the
// amount due before the withholding.
QString mismatch(const EsmmDocument &d)
{
    if (!d.otherTaxCodes.isEmpty())
        return QStringLiteral("tanınmayan vergi kodu %1").arg(d.otherTaxCodes.join(QStringLiteral(", ")));
    const QString holder = parameters().vergino.trimmed();
    if (!holder.isEmpty() && d.issuer != holder)
        return QStringLiteral("düzenleyen %1, defterin sahibi %2").arg(d.issuer, holder);
    if (d.payerId.isEmpty())
        return QStringLiteral("alıcının vergi numarası yok");
    if (d.gross <= Currency())
        return QStringLiteral("brüt ücret yok");
    if (d.lineTaxes) {
        const std::tuple<const char *, Currency, Currency> taxes[] = { { "stopajı", d.stopaj, d.lineTaxes->stopaj },
            { "KDV'si", d.kdv, d.lineTaxes->kdv }, { "tevkifatı", d.withheld, d.lineTaxes->withheld } };
        for (const auto &[what, own, lines] : taxes)
            if (apart(own, lines))
                return QStringLiteral("belgenin %1 %2, satırlarınki %3")
                    .arg(QString::fromUtf8(what), EsmmAmountText(own), EsmmAmountText(lines));
    }
    // The VAT withheld is its share (in percent) of the VAT.
    const Currency share = Currency::fromRaw(d.kdv.raw() * d.withheldPercent / 100);
    if (apart(d.withheld, share))
        return QStringLiteral("tevkifat %1; oranı %2, KDV %3")
            .arg(EsmmAmountText(d.withheld), u'%' + QString::number(d.withheldPercent), EsmmAmountText(d.kdv));
    const Currency payable = AmountDue(d);
    if (apart(d.statedPayable, payable))
        return differs(QStringLiteral("ödenecek tutar"), *d.statedPayable, payable);
    if (apart(d.statedTotal, payable + d.stopaj))
        return differs(QStringLiteral("toplam tutar"), *d.statedTotal, payable + d.stopaj);
    if (apart(d.statedTaxes, d.kdv + d.stopaj - d.withheld))
        return differs(QStringLiteral("vergiler toplamı"), *d.statedTaxes, d.kdv + d.stopaj - d.withheld);
    return QString();
}

} // namespace

// The account cards by tax number, and the codes in use, read once per run; new cards for
// payers not known.
class PayerCards
{
public:
    PayerCards()
    {
        std::unique_ptr<Recordset> cards;
        if (!QueryOpen(*dataFiles().db, cards, QStringLiteral("SELECT kod, vn FROM carkart ORDER BY kod")))
            return;
        do {
            const QString code = FieldRead(*cards, QStringLiteral("kod")).toString();
            const QString number = FieldRead(*cards, QStringLiteral("vn")).toString().trimmed();
            m_codes.insert(code);
            if (!number.isEmpty() && !m_byNumber.contains(number))
                m_byNumber.insert(number, code);
        } while (RsNext(*cards));
    }

    // The code of the payer's card; made = whether it was made now. "" when it could not be made.
    QString codeFor(const EsmmDocument &d, bool *made)
    {
        *made = !m_byNumber.contains(d.payerId);
        if (!*made)
            return m_byNumber.value(d.payerId);
        QString code;
        do
            code = QStringLiteral("E%1").arg(++m_last, 7, 10, QLatin1Char('0'));
        while (m_codes.contains(code));
        Recordset &cards = *dataFiles().carkart;
        if (!RsAddNew(cards))
            return QString();
        FieldWrite(cards, QStringLiteral("kod"), code);
        FieldWrite(cards, QStringLiteral("unv"), FirstCharacters(d.payerName, 50));
        FieldWrite(cards, QStringLiteral("vd"), FirstCharacters(d.payerTaxOffice, 15));
        FieldWrite(cards, QStringLiteral("vn"), FirstCharacters(d.payerId, 15));
        FieldWrite(cards, QStringLiteral("tip"), 0);
        if (!RsUpdate(cards))
            return QString();
        m_codes.insert(code);
        m_byNumber.insert(d.payerId, code);
        return code;
    }

private:
    QHash<QString, QString> m_byNumber;
    QSet<QString> m_codes;
    int m_last = 0;
};

QString EsmmStatusName(EsmmStatus status)
{
    static const char16_t *const names[EsmmStatusCount]
        = { u"Yeni", u"Kayıtlı", u"Uyuşmuyor", u"Okunamadı", u"Eksik", u"Döviz", u"Çakışma", u"Aktarıldı", u"Atlandı" };
    return QString::fromUtf16(names[int(status)]);
}

QString EsmmAmountText(Currency amount)
{
    QString text = FormatNumber(amount.toString(), 2, 3);
    const qsizetype point = text.indexOf(u'.');
    if (point == 0 || (point == 1 && text.front() == u'-'))
        text.insert(point, u'0');
    return text.isEmpty() ? QStringLiteral("0.00") : text;
}

Currency AmountDue(const EsmmDocument &d)
{
    return PayableTotal(d.gross - d.stopaj, d.kdv, d.withheld);
}

QString EsmmRow::statusText() const
{
    if (!reason.isEmpty())
        return EsmmStatusName(status) + QStringLiteral(": ") + reason;
    if (status == EsmmStatus::Posted && !newCard.isEmpty())
        return QStringLiteral("Aktarıldı (yeni cari %1)").arg(newCard);
    return EsmmStatusName(status);
}

// A file already listed is not listed again: picking the same files twice shows each document once.
void EsmmImport::read(const QStringList &paths)
{
    KeptEsmms kept;
    QSet<QString> listed;
    for (const EsmmRow &row : m_rows)
        listed.insert(row.origin);
    ReadEsmmFiles(paths, [&](const EsmmFile &file) {
        if (listed.contains(file.origin))
            return;
        listed.insert(file.origin);
        EsmmRow row;
        row.origin = file.origin;
        row.reason = file.skipped.isEmpty() ? file.error : file.skipped;
        if (row.reason.isEmpty() && file.xml.trimmed().isEmpty())
            row.reason = QStringLiteral("boş dosya");
        if (!file.skipped.isEmpty())
            row.status = EsmmStatus::Skipped;
        else if (row.reason.isEmpty() && ReadEsmmDocument(file.xml, &row.document, &row.reason))
            classify(row, kept);
        else
            row.status = EsmmStatus::Unreadable;
        m_rows.push_back(std::move(row));
    });
}

// A document met before (in the books, or earlier in this import) is "Kayıtlı" when both copies
// agree and a conflict when they do not; so is a second ETTN for an issuer's receipt number.
void EsmmImport::classify(EsmmRow &row, KeptEsmms &kept)
{
    const EsmmDocument &d = row.document;
    const std::optional<EsmmDocument> earlier = m_new.contains(d.ettn) ? m_new.value(d.ettn) : kept.find(d.ettn);
    const QString numberKey = d.issuer + u'|' + d.makbuzNo;
    if (earlier && !earlier->date.isValid()) {
        row.status = EsmmStatus::Known;
        row.reason = QStringLiteral("defter satırı silinmiş; hesap satırıyla birlikte silinince yeniden aktarılabilir");
    } else if (earlier) {
        row.reason = EsmmDifferences(*earlier, d);
        row.status = row.reason.isEmpty() ? EsmmStatus::Known : EsmmStatus::Conflict;
    } else if (const QString other
               = m_numbers.contains(numberKey) ? m_numbers.value(numberKey) : kept.otherEttnOfNumber(d);
               !other.isEmpty()) {
        row.status = EsmmStatus::Conflict;
        row.reason = QStringLiteral("%1 numaralı makbuz başka bir ETTN ile (%2) var").arg(d.makbuzNo, other);
    } else {
        check(row);
    }
    if (row.status == EsmmStatus::New) {
        m_new.insert(d.ettn, d);
        m_numbers.insert(numberKey, d.ettn);
    }
}

void EsmmImport::check(EsmmRow &row)
{
    const EsmmDocument &d = row.document;
    if (d.ettn.isEmpty() || d.dateText.isEmpty() || d.makbuzNo.isEmpty()) {
        row.status = EsmmStatus::Incomplete;
        row.reason = d.ettn.isEmpty() ? QStringLiteral("ETTN yok")
            : d.makbuzNo.isEmpty()    ? QStringLiteral("makbuz numarası yok")
                                      : QStringLiteral("belge tarihi yok");
    } else if (const QString wrong = wrongDate(d); !wrong.isEmpty()) {
        row.status = EsmmStatus::Mismatch;
        row.reason = wrong;
    } else if (d.vatAccrualOnly) { // income counts when the fee is collected
        row.status = EsmmStatus::Mismatch;
        row.reason = QStringLiteral("yalnız KDV tahakkuku için düzenlenmiş; ücreti tahsil edince giriniz");
    } else if (d.currency != u"TRY") {
        row.status = EsmmStatus::Foreign;
        row.reason = d.currency;
    } else {
        row.reason = mismatch(d);
        if (!row.reason.isEmpty())
            row.status = EsmmStatus::Mismatch;
    }
}

bool EsmmImport::post(QString *why)
{
    if (count(EsmmStatus::New) == 0)
        return true;
    if (const EsmmRow *row = roundedByTheBooks(m_rows)) {
        *why = QStringLiteral("%1 numaralı belgenin tutarları kuruşlu; defter tutarları \"Ayarlar\" ekranındaki \"TL "
                              "Onda\" ayarıyla %2 ondalıkla tutuyor. Tutarlar yuvarlanmasın diye hiçbir belge "
                              "aktarılmadı: \"TL Onda\" ayarını 2 yapıp yeniden aktarınız.")
                   .arg(row->document.makbuzNo)
                   .arg(amountConventions().tlonda);
        return false;
    }
    Database &db = *dataFiles().db;
    Backups::beforeChange();
    QString failure;
    if (!db.run(QStringLiteral("BEGIN IMMEDIATE"))) {
        failure = QStringLiteral("Aktarım başlatılamadı (%1)").arg(db.lastFailure());
    } else {
        PayerCards cards;
        for (EsmmRow &row : m_rows)
            if (row.status == EsmmStatus::New && !postRow(row, cards)) {
                failure = QStringLiteral("%1 kaydedilemedi").arg(row.document.makbuzNo);
                break;
            }
        if (failure.isEmpty() && !db.run(QStringLiteral("COMMIT")))
            failure = QStringLiteral("Aktarım tamamlanamadı");
        if (!failure.isEmpty()) {
            failure += QStringLiteral(" (%1)").arg(db.lastFailure()); // before the rollback's own result
            db.run(QStringLiteral("ROLLBACK"));
        }
    }
    // Every new row was posted, or none was (and no card made for one of them stands).
    for (EsmmRow &row : m_rows)
        if (row.status == EsmmStatus::New && failure.isEmpty()) {
            row.status = EsmmStatus::Posted;
            row.reason.clear();
        } else if (row.status == EsmmStatus::New) {
            row.reason = QStringLiteral("aktarılmadı");
            row.newCard.clear();
        }
    *why = failure.isEmpty() ? QString() : failure + QStringLiteral("; hiçbir belge aktarılmadı.");
    return failure.isEmpty();
}

// The postings of the receipt screen: the payer owes the amount due; the ledger takes the gross,
// the withholding and the VAT computed; the receipt's own record the rest of the document.
bool EsmmImport::postRow(EsmmRow &row, PayerCards &cards)
{
    const EsmmDocument &d = row.document;
    bool made = false;
    const QString code = cards.codeFor(d, &made);
    if (code.isEmpty())
        return false;
    if (made)
        row.newCard = code;
    const QString evrak = d.makbuzNo.right(8); // the running number within the year
    const qint64 account
        = AddAccountPosting({ code, d.date, 2, evrak, FirstCharacters(d.firstLine, 40), 0, AmountDue(d) });
    const qint64 ledger = account > 0 ? AddLedgerPosting({ 0, d.date, 0, evrak, code, FirstCharacters(d.payerName, 40),
                              d.gross, d.stopaj, Currency(), d.kdv })
                                      : 0;
    ReceiptRecord record;
    record.tevkoran = d.withheldPercent;
    record.tevkifat = d.withheld;
    record.tevkkod = d.withheldCode;
    record.makbuzno = d.makbuzNo;
    record.ettn = d.ettn;
    record.vkn = d.issuer;
    record.dosya = row.origin;
    return ledger > 0 && AddReceiptRecord(ledger, account, record);
}

int EsmmImport::count(EsmmStatus status) const
{
    return int(
        std::count_if(m_rows.begin(), m_rows.end(), [status](const EsmmRow &row) { return row.status == status; }));
}

QString EsmmImport::summary() const
{
    QStringList parts;
    for (int s = 0; s < EsmmStatusCount; ++s)
        if (const int n = count(EsmmStatus(s)); n > 0)
            parts << QStringLiteral("%1 %2").arg(n).arg(EsmmStatusName(EsmmStatus(s)));
    return parts.isEmpty() ? QStringLiteral("Belge bulunamadı") : parts.join(QStringLiteral(", "));
}
