#include "accounts/AccountStatementScreen.h"

#include "accounts/TransactionTypeLabel.h"
#include "books/AccessLayer.h"
#include "books/DataFiles.h"
#include "books/TurkishText.h"
#include "controls/ListWindow.h"
#include "money/FormatAmount.h"
#include "printing/PagedReport.h"

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
    if (!QueryWalk(*dataFiles().db, rows, sql, values))
        return;
    QString walked, lastSpelling;
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
        // The spellings of one code ("ışık", "IŞIK") are one account, headed by its card's code;
        // a row spelled as the one before belongs to the same account.
        const QString spelling = FieldRead(*rows, QStringLiteral("kod")).toString();
        if (spelling != lastSpelling || walked.isNull()) {
            lastSpelling = spelling;
            const QString kod = TurkishUpper(spelling);
            if (kod != walked) {
                closeAccount();
                walked = kod;
                debit = credit = Currency();
                // Rows under a code without a card are the account's all the same, with an empty title.
                const bool hasCard = CariExists(kod);
                shown = !hasCard || admits(FieldRead(cards, QStringLiteral("tip")).toInt());
                if (shown)
                    emitLine(Line::Heading,
                        { hasCard ? FieldRead(cards, QStringLiteral("kod")) : QVariant(spelling), QString(), QString(),
                            hasCard ? FieldRead(cards, QStringLiteral("unv")).toString() : QString() });
            }
        }
        if (!shown)
            continue;
        const Currency tutar = FieldRead(*rows, QStringLiteral("tutar")).value<Currency>();
        const bool onDebit = FieldRead(*rows, QStringLiteral("ba")).toInt() == 0;
        (onDebit ? debit : credit) += tutar;
        emitLine(Line::Transaction,
            { FieldRead(*rows, QStringLiteral("tarih")).toDate(),
                TransactionTypeLabel(FieldRead(*rows, QStringLiteral("islem")).toInt()),
                FieldRead(*rows, QStringLiteral("evrak")).toString(),
                FieldRead(*rows, QStringLiteral("ack")).toString(), onDebit ? amount(tutar) : QVariant(QString()),
                onDebit ? QVariant(QString()) : amount(tutar), balanceText(debit - credit) });
    }
    closeAccount();
}

// Date, type, document, text, debit, credit and the balance with its side.
const ReportColumns &AccountStatementScreen::columns()
{
    static const ReportColumns declared = { DateColumn(QStringLiteral("tarih"), QStringLiteral("Tarih"), 10, 90),
        TextColumn(QStringLiteral("islem"), QStringLiteral("İşlem"), 12, 90),
        TextColumn(QStringLiteral("evrak"), QStringLiteral("Evrak"), 8, 80),
        TextColumn(QStringLiteral("ack"), QStringLiteral("Açıklama"), 40, 240),
        AmountColumn(QStringLiteral("borc"), QStringLiteral("Borç"), 17, 115),
        AmountColumn(QStringLiteral("alacak"), QStringLiteral("Alacak"), 17, 115),
        TextColumn(QStringLiteral("bakiye"), QStringLiteral("Bakiye"), 17, 130).right() };
    return declared;
}

void AccountStatementScreen::listOnScreen()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    ListWindow *window
        = ShowListWindow(m_listWindow, QStringLiteral("Form16Liste"), QStringLiteral("Cari Hareket Dökümü"), columns());
    std::vector<QVariantList> lines;
    walk([&lines](Line, const QVariantList &cells) { lines.push_back(cells); });
    window->addRows(lines);
    QApplication::restoreOverrideCursor();
}

void AccountStatementScreen::printOn(int kind)
{
    ReportLayout layout;
    layout.columns = columns();
    layout.pageTop = [this](Prnx &printer) { printRangeHead(printer); };
    layout.carryCaption = QStringLiteral("Sayfa Devri :");
    layout.totalsOnOwnPage = true;
    PrintPagedReport(kind, QStringLiteral("Cari Hareket Dökümü"), std::move(layout), [this](PagedReport &report) {
        walk([&report](Line line, QVariantList cells) {
            if (line == Line::Total) // the account's own sums are not page totals
                for (QVariant &cell : cells)
                    if (cell.userType() == qMetaTypeId<Currency>())
                        cell = FormatAmount(cell.value<Currency>());
            report.printRow(cells);
        });
    });
}
