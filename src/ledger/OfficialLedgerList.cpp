#include "ledger/OfficialLedgerList.h"

#include "books/Message.h"
#include "books/Parameters.h"
#include "controls/DcList.h"
#include "printing/PagedReport.h"
#include "printing/PrintSettings.h"
#include "printing/Prnx.h"

#include <QTableView>

OfficialLedgerList::OfficialLedgerList(QWidget *parent)
    : ListWindow(QStringLiteral("Form13"), QStringLiteral("Serbest Meslek Defteri"), parent)
{
}

void OfficialLedgerList::showBook(int side, bool withholding, bool fund, bool withheldVat)
{
    m_side = side;
    m_withheldVat = withheldVat;
    setWindowTitle(side == Gelir ? QStringLiteral("Serbest Meslek Defteri (Gelir)")
                                 : QStringLiteral("Serbest Meslek Defteri (Gider)"));
    list()->setAccessibleName(windowTitle());
    list()->view()->setAccessibleName(windowTitle());
    m_rows.clear();
    setColumns(columns(side, withholding, fund, withheldVat));
}

ReportColumns OfficialLedgerList::columns(int side, bool withholding, bool fund, bool withheldVat)
{
    const bool income = side == Gelir;
    // The withheld VAT's column and its gap are taken from the text, so the page keeps its width.
    const bool withheld = income && withheldVat;
    const int amountPixels = income ? 110 : 120;
    return { NumberColumn(QStringLiteral("sira"), QStringLiteral("Sıra"), 4, 50),
        DateColumn(QStringLiteral("tarih"), QStringLiteral("Tarih"), 12, 90),
        TextColumn(QStringLiteral("evrak"), QStringLiteral("Evrak"), 10, 80),
        TextColumn(QStringLiteral("ack"), QStringLiteral("Açıklama"), withheld ? 29 : 42, income ? 150 : 250),
        AmountColumn(
            QStringLiteral("matrah"), income ? QStringLiteral("Gelir") : QStringLiteral("Gider"), 15, amountPixels)
            .listedAs(QStringLiteral("Matrah")),
        AmountColumn(
            QStringLiteral("stopaj"), QStringLiteral("Stopaj"), income ? 12 : 0, income && withholding ? 110 : 0),
        AmountColumn(QStringLiteral("fon"), QStringLiteral("Fon"), 0, income && fund ? 110 : 0),
        AmountColumn(
            QStringLiteral("kdv"), income ? QStringLiteral("Hes.Kdv.") : QStringLiteral("İnd.Kdv."), 12, amountPixels)
            .listedAs(QStringLiteral("Kdv")),
        AmountColumn(QStringLiteral("tevkifat"), QStringLiteral("Tevk.Kdv."), withheld ? 12 : 0, withheld ? 110 : 0)
            .listedAs(QStringLiteral("Tevk.Kdv")),
        AmountColumn(QStringLiteral("toplam"), QStringLiteral("Toplam"), 15, 0) };
}

void OfficialLedgerList::addRow(
    int sira, QDate date, const QString &evrak, const QString &ack, const LedgerAmounts &amounts)
{
    const Currency total = amounts.brut + amounts.kdv + (m_side == Gelir ? amounts.stopaj : Currency());
    QVariantList cells = { sira, date.isValid() ? QVariant(date) : QVariant(QString()), evrak, ack,
        QVariant::fromValue(amounts.brut), QVariant::fromValue(amounts.stopaj), QVariant::fromValue(amounts.fon),
        QVariant::fromValue(amounts.kdv), QVariant::fromValue(amounts.tevkifat), QVariant::fromValue(total) };
    m_rows.push_back(std::move(cells));
}

void OfficialLedgerList::listRows()
{
    addRows(m_rows); // the printout takes every row, also those beyond a full list
}

void OfficialLedgerList::yazdir(int kind, int side)
{
    if (parameters().unvan.trimmed().isEmpty()) {
        Message::exclamation(QStringLiteral("Parametrelerden Unvanı Doldurunuz"));
        return;
    }
    const bool income = side == Gelir;
    ReportLayout layout;
    layout.columns = columns(side, true, false, m_withheldVat);
    layout.pageTop = [this, income](Prnx &printer) { pageTop(printer, income); };
    layout.boldHeads = false;
    layout.carryCaption = QStringLiteral("Nakli Yekun :");
    layout.boldTotals = true;
    const QString document = income ? QStringLiteral("SM Defteri (Gelir)") : QStringLiteral("SM Defteri (Gider)");
    PrintPagedReport(kind, document, std::move(layout), [this](PagedReport &report) {
        for (const QVariantList &row : m_rows)
            report.printRow(row);
    });
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
