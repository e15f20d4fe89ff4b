#include "ledger/OfficialLedgerList.h"

#include "books/Message.h"
#include "books/Parameters.h"
#include "controls/DcList.h"
#include "money/AmountConventions.h"
#include "printing/PagedReport.h"
#include "printing/PrintSettings.h"
#include "printing/Prnx.h"

#include <QTableView>

namespace {

constexpr double amountLimit = 9999999999999.0;

} // namespace

OfficialLedgerList::OfficialLedgerList(QWidget *parent)
    : ListWindow(QStringLiteral("Form13"), QStringLiteral("Serbest Meslek Defteri"), parent)
{
}

void OfficialLedgerList::showBook(int side, bool withholding, bool fund)
{
    m_side = side;
    setWindowTitle(side == Gelir ? QStringLiteral("Serbest Meslek Defteri (Gelir)")
                                 : QStringLiteral("Serbest Meslek Defteri (Gider)"));
    list()->setAccessibleName(windowTitle());
    list()->view()->setAccessibleName(windowTitle());
    list()->Clear();
    list()->Reset();
    defineColumns(withholding, fund);
    fitToColumns();
}

void OfficialLedgerList::defineColumns(bool withholding, bool fund)
{
    const int onda = amountConventions().tlonda;
    const int textWidth = m_side == Gelir ? 150 : 250;
    const int amountWidth = m_side == Gelir ? 110 : 120;
    list()->Add(QStringLiteral("n"), QStringLiteral("sira"), QStringLiteral("Sıra"), 50, 99999999, 0, 0, 0);
    list()->Add(QStringLiteral("t"), QStringLiteral("tarih"), QStringLiteral("Tarih"), 90, 10, 0, 0, 0);
    list()->Add(QStringLiteral("a"), QStringLiteral("evrak"), QStringLiteral("Evrak"), 80, 8, 0, 0, 0);
    list()->Add(QStringLiteral("a"), QStringLiteral("ack"), QStringLiteral("Açıklama"), textWidth, 40, 0, 0, 0);
    list()->Add(
        QStringLiteral("n"), QStringLiteral("matrah"), QStringLiteral("Matrah"), amountWidth, amountLimit, 0, onda, 3);
    if (m_side == Gelir && withholding)
        list()->Add(
            QStringLiteral("n"), QStringLiteral("stopaj"), QStringLiteral("Stopaj"), 110, amountLimit, 0, onda, 3);
    if (m_side == Gelir && fund)
        list()->Add(QStringLiteral("n"), QStringLiteral("fon"), QStringLiteral("Fon"), 110, amountLimit, 0, onda, 3);
    list()->Add(
        QStringLiteral("n"), QStringLiteral("kdv"), QStringLiteral("Kdv"), amountWidth, amountLimit, 0, onda, 3);
}

void OfficialLedgerList::addRow(
    int sira, const QString &date, const QString &evrak, const QString &ack, const LedgerAmounts &amounts)
{
    const int row = list()->CreateNewCaption();
    if (row < 0)
        return;
    list()->setCaption(row, Sira, QString::number(sira));
    list()->setCaption(row, Tarih, date);
    list()->setCaption(row, Evrak, evrak);
    list()->setCaption(row, Ack, ack);
    list()->setCaption(row, Matrah, amounts.brut.toString());
    // Columns the list does not have take no value.
    list()->setCaptionByName(row, QStringLiteral("stopaj"), amounts.stopaj.toString());
    list()->setCaptionByName(row, QStringLiteral("fon"), amounts.fon.toString());
    list()->setCaptionByName(row, QStringLiteral("kdv"), amounts.kdv.toString());
}

Currency OfficialLedgerList::amountAt(int row, const QString &name) const
{
    return Currency::fromString(list()->CaptionByName(row, name));
}

void OfficialLedgerList::yazdir(int kind, int side)
{
    if (parameters().unvan.trimmed().isEmpty()) {
        Message::exclamation(QStringLiteral("Parametrelerden Unvanı Doldurunuz"));
        return;
    }
    Prnx prnx;
    const bool income = side == Gelir;
    if (!prnx.OpenPrinter(
            kind, income ? QStringLiteral("SM Defteri (Gelir)") : QStringLiteral("SM Defteri (Gider)"), true)) {
        Message::exclamation(QStringLiteral("Yazıcı Açılamadı"));
        return;
    }
    ReportLayout layout;
    layout.columns = { { QStringLiteral("Sıra"), 4, 1 }, { QStringLiteral("Tarih"), 12 },
        { QStringLiteral("Evrak"), 10 }, { QStringLiteral("Açıklama"), 42 } };
    if (income)
        layout.columns.insert(layout.columns.end(),
            { { QStringLiteral("Gelir"), 15, 1, true }, { QStringLiteral("Stopaj"), 12, 1, true },
                { QStringLiteral("Hes.Kdv."), 12, 1, true } });
    else
        layout.columns.insert(layout.columns.end(),
            { { QStringLiteral("Gider"), 15, 1, true }, { QStringLiteral("İnd.Kdv."), 12, 1, true } });
    layout.columns.push_back({ QStringLiteral("Toplam"), 15, 1, true });
    layout.pageTop = [this, income](Prnx &printer) { pageTop(printer, income); };
    layout.boldHeads = false;
    layout.carryCaption = QStringLiteral("Nakli Yekun :");
    layout.boldTotals = true;
    PagedReport report(prnx, std::move(layout));
    for (int row = 0; row < list()->ListCount(); ++row) {
        const Currency matrah = amountAt(row, QStringLiteral("matrah"));
        const Currency kdv = amountAt(row, QStringLiteral("kdv"));
        QVariantList cells = { list()->curtext(list()->Caption(row, Sira), Sira), list()->Caption(row, Tarih),
            list()->Caption(row, Evrak), list()->Caption(row, Ack), QVariant::fromValue(matrah) };
        if (income) {
            const Currency stopaj = amountAt(row, QStringLiteral("stopaj"));
            cells << QVariant::fromValue(stopaj) << QVariant::fromValue(kdv)
                  << QVariant::fromValue(matrah + kdv + stopaj);
        } else {
            cells << QVariant::fromValue(kdv) << QVariant::fromValue(matrah + kdv);
        }
        report.printRow(cells);
    }
    report.finish();
    prnx.ClosePrinter();
}

// The title with its side, the holder's name and, when asked for, the page number.
void OfficialLedgerList::pageTop(Prnx &prnx, bool income) const
{
    const PrintSettings &record = printSettings();
    prnx.Lprint(QStringLiteral(" "), 1, true);
    if (record.titleHeading)
        prnx.Lprint(
            record.title + (income ? QStringLiteral(" (GELIR)") : QStringLiteral(" (GIDER)")), 115, true, 2, true);
    if (record.companyHeading) {
        prnx.Lprint(QStringLiteral("Ünvan :"), 7, false, 1);
        prnx.Lprint(parameters().unvan.trimmed(), 43);
    }
    if (record.pageNoHeading)
        prnx.Lprint(QStringLiteral("Sayfa:") + QStringLiteral("%1").arg(prnx.SayfaSayisi(), 3, 10, QLatin1Char('0')),
            income ? 78 : 65, true, 1);
    else
        prnx.Lprint(QStringLiteral(" "), 1, true);
    prnx.Lprint(QStringLiteral(" "), 1, true);
}
