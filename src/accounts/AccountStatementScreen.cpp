#include "accounts/AccountStatementScreen.h"

#include "accounts/TransactionTypeLabel.h"
#include "books/AccessLayer.h"
#include "books/DataFiles.h"
#include "books/TurkishText.h"
#include "controls/DcList.h"
#include "controls/GridFill.h"
#include "controls/ListWindow.h"
#include "controls/OpenInMain.h"
#include "money/AmountConventions.h"
#include "money/DayNumber.h"
#include "money/FormatAmount.h"
#include "printing/PagedReport.h"
#include "printing/PrintPreset.h"
#include "printing/PrintSettings.h"
#include "printing/Prnx.h"

#include <QApplication>

namespace {

// A balance with its side: "B" debit, "A" credit, nothing when it is settled.
QString balanceText(Currency balance)
{
    if (balance == Currency())
        return QString();
    return FormatAmount(balance.magnitude()) + (balance > Currency() ? QStringLiteral(" B") : QStringLiteral(" A"));
}

QVariant amount(Currency value)
{
    return QVariant::fromValue(value);
}

} // namespace

AccountStatementScreen::AccountStatementScreen(QWidget *parent)
    : AccountRangeScreen(QStringLiteral("Form16"), QStringLiteral("Cari Hareket Dökümü"), parent)
{
}

void AccountStatementScreen::walk(const std::function<void(Line line, const QVariantList &cells)> &emitLine) const
{
    QVariantList values;
    const QString sql = QStringLiteral("SELECT c.kod AS kod, c.tarih AS tarih, c.islem AS islem, c.evrak AS evrak, "
                                       "c.ack AS ack, c.ba AS ba, c.tutar AS tutar FROM carhar c WHERE %1 "
                                       "ORDER BY c.kod COLLATE TR, c.tarih, c.islem, c.oto")
                            .arg(rangeCondition(values));
    std::unique_ptr<Recordset> rows;
    if (!QueryOpen(*dataFiles().db, rows, sql, values))
        return;
    QString walked;
    bool shown = false; // the walked account has a card of an admitted type
    Currency debit, credit;
    const auto closeAccount = [&] {
        if (shown)
            emitLine(Line::Total,
                { QString(), QString(), QString(), QStringLiteral("Hesap Toplamı :"), amount(debit), amount(credit),
                    balanceText(debit - credit) });
    };
    Recordset &cards = *dataFiles().carkart;
    for (; !RsEof(*rows); RsNext(*rows)) {
        // The spellings of one code ("ışık", "IŞIK") are one account, headed by its card's code.
        const QString kod = TurkishUpper(FieldRead(*rows, QStringLiteral("kod")).toString());
        if (kod != walked) {
            closeAccount();
            walked = kod;
            debit = credit = Currency();
            shown = CariExists(kod) && admits(FieldRead(cards, QStringLiteral("tip")).toInt());
            if (shown)
                emitLine(Line::Heading,
                    { FieldRead(cards, QStringLiteral("kod")), QString(), QString(),
                        FieldRead(cards, QStringLiteral("unv")).toString() });
        }
        if (!shown)
            continue;
        const Currency tutar = FieldRead(*rows, QStringLiteral("tutar")).value<Currency>();
        const bool onDebit = FieldRead(*rows, QStringLiteral("ba")).toInt() == 0;
        (onDebit ? debit : credit) += tutar;
        emitLine(Line::Transaction,
            { FormatDate(FieldRead(*rows, QStringLiteral("tarih")).toDate()),
                TransactionTypeLabel(FieldRead(*rows, QStringLiteral("islem")).toInt()),
                FieldRead(*rows, QStringLiteral("evrak")).toString(),
                FieldRead(*rows, QStringLiteral("ack")).toString(), onDebit ? amount(tutar) : QVariant(QString()),
                onDebit ? QVariant(QString()) : amount(tutar), balanceText(debit - credit) });
    }
    closeAccount();
}

void AccountStatementScreen::listOnScreen()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    if (!m_listWindow) {
        m_listWindow = new ListWindow(QStringLiteral("Form16Liste"), QStringLiteral("Cari Hareket Dökümü"));
        m_listWindow->setAttribute(Qt::WA_DeleteOnClose);
        const int onda = amountConventions().tlonda;
        const double limit = 999999999999.0;
        DcList *list = m_listWindow->list();
        list->Add(QStringLiteral("a"), QStringLiteral("tarih"), QStringLiteral("Tarih"), 90, 10, 0, 0, 0);
        list->Add(QStringLiteral("a"), QStringLiteral("islem"), QStringLiteral("İşlem"), 90, 12, 0, 0, 0);
        list->Add(QStringLiteral("a"), QStringLiteral("evrak"), QStringLiteral("Evrak"), 80, 8, 0, 0, 0);
        list->Add(QStringLiteral("a"), QStringLiteral("ack"), QStringLiteral("Açıklama"), 240, 50, 0, 0, 0);
        list->Add(QStringLiteral("n"), QStringLiteral("borc"), QStringLiteral("Borç"), 115, limit, 0, onda, 3);
        list->Add(QStringLiteral("n"), QStringLiteral("alacak"), QStringLiteral("Alacak"), 115, limit, 0, onda, 3);
        list->Add(QStringLiteral("a"), QStringLiteral("bakiye"), QStringLiteral("Bakiye"), 130, 20, 0, 0, 0);
    }
    OpenInMain(m_listWindow);
    m_listWindow->fitToColumns();
    DcList *list = m_listWindow->list();
    list->Clear();
    walk([list](Line, const QVariantList &cells) {
        const int row = list->CreateNewCaption();
        for (int c = 0; row >= 0 && c < cells.size(); ++c)
            list->setCaption(row, c, GridCellText(cells[c]));
    });
    QApplication::restoreOverrideCursor();
}

void AccountStatementScreen::print()
{
    const int kind
        = ChoosePrinter({ QStringLiteral("GENEL BORÇ ALACAK LİSTESİ"), true, true, false, true, 66, {} }, this);
    if (kind != 0)
        printOn(kind);
}

void AccountStatementScreen::printOn(int kind)
{
    Prnx prnx;
    if (!prnx.OpenPrinter(kind, QStringLiteral("Cari Hareket Dökümü"), true))
        return;
    ReportLayout layout;
    layout.columns = { { QStringLiteral("Tarih"), 10 }, { QStringLiteral("İşlem"), 12 }, { QStringLiteral("Evrak"), 8 },
        { QStringLiteral("Açıklama"), 40 }, { QStringLiteral("Borç"), 17, 1, true },
        { QStringLiteral("Alacak"), 17, 1, true }, { QStringLiteral("Bakiye"), 17, 1 } };
    layout.pageTop = [this](Prnx &printer) { printRangeHead(printer); };
    layout.carryCaption = QStringLiteral("Sayfa Devri :");
    layout.totalsOnOwnPage = true;
    PagedReport report(prnx, std::move(layout));
    walk([&report](Line line, QVariantList cells) {
        if (line == Line::Total) // the account's own sums are not page totals
            for (QVariant &cell : cells)
                if (cell.userType() == qMetaTypeId<Currency>())
                    cell = FormatAmount(cell.value<Currency>());
        report.printRow(cells);
    });
    report.finish();
    prnx.ClosePrinter();
}
