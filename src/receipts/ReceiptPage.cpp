#include "receipts/ReceiptPage.h"

#include "books/AccessLayer.h"
#include "books/DataFiles.h"
#include "money/AmountInWords.h"
#include "money/FormatAmount.h"
#include "printing/Prnx.h"

#include <cmath>

namespace {

int position(float value)
{
    return int(std::nearbyint(double(value))); // halves to even
}

QString rate(float value)
{
    return QString::number(double(value), 'g', 7);
}

// The item's text and whether it is right-aligned.
QString itemText(const ReceiptValues &v, const LayoutRow &row, bool *right)
{
    *right = (row.no >= 7 && row.no <= 12) || (row.no >= 14 && row.no <= 16) || row.no == 20 || row.no == 21;
    switch (row.no) {
    case 0:
        return v.title;
    case 1:
        return v.address1;
    case 2:
        return v.address2;
    case 3:
        return v.taxOffice;
    case 4:
        return v.taxNumber;
    case 5:
        return v.taxOffice + QStringLiteral(" - ") + v.taxNumber;
    case 6:
        return v.description;
    case 7:
        return FormatAmount(v.gross, 3);
    case 8:
        return FormatAmount(v.stopaj, 3);
    case 9:
        return FormatAmount(v.fon, 3);
    case 10:
        return FormatAmount(v.net, 3);
    case 11:
        return FormatAmount(v.kdv, 3);
    case 12:
        return FormatAmount(v.total, 3);
    case 13:
        return row.txt.trimmed() + AmountInWords(v.total, QDate::fromString(v.date, u"dd.MM.yyyy"));
    case 14:
        return rate(v.stopajRate);
    case 15:
        return rate(v.fonRate);
    case 16:
        return rate(v.kdvRate);
    case 17:
        return v.number;
    case 18:
        return v.date;
    case 20:
        return FormatAmount(v.withheld, 3);
    case 21:
        return v.withheldTenths != 0 ? QStringLiteral("%1/10").arg(v.withheldTenths) : QString();
    default:
        return row.txt;
    }
}

} // namespace

const QStringList &ReceiptItemNames()
{
    static const QStringList names = { QStringLiteral("Ünvan"), QStringLiteral("Adres 1"), QStringLiteral("Adres 2"),
        QStringLiteral("V.Dairesi"), QStringLiteral("V.Hesap"), QStringLiteral("V.Daire+Hesap"),
        QStringLiteral("Açıklama"), QStringLiteral("Brüt Ücret"), QStringLiteral("Stopaj"), QStringLiteral("Fon"),
        QStringLiteral("Net Ücret"), QStringLiteral("Kdv"), QStringLiteral("Toplam"), QStringLiteral("Yazi ile Toplam"),
        QStringLiteral("Stopaj Oran"), QStringLiteral("Fon Oran"), QStringLiteral("Kdv Oran"),
        QStringLiteral("Makbuz No"), QStringLiteral("Tarih"), QStringLiteral("Serbest Açıklama"),
        QStringLiteral("Tevkifat"), QStringLiteral("Tevkifat Oran") };
    return names;
}

QStringList ComposeReceiptPage(const ReceiptValues &values, const std::vector<LayoutRow> &layout)
{
    QStringList page;
    for (int line = 0; line < ReceiptLines; ++line)
        page << QString(ReceiptColumns, u' ');
    for (const LayoutRow &row : layout) {
        const int line = position(row.ust);
        const int column = position(row.sol);
        const int width = position(row.uzun);
        if (line < 1 || line > ReceiptLines || row.no < 0 || row.no >= ReceiptItemNames().size() || column < 1
            || column > ReceiptColumns || width < 0)
            continue;
        bool right = false;
        const QString text = itemText(values, row, &right);
        const QString fitted
            = right ? (QString(width, u' ') + text).right(width) : (text + QString(width, u' ')).left(width);
        QString &target = page[line - 1];
        target.replace(column - 1, qMin(width, ReceiptColumns - column + 1), fitted.left(ReceiptColumns - column + 1));
    }
    return page;
}

std::vector<LayoutRow> ReadLayout()
{
    // A query, not the shared duzen cursor: a seek the designer missed must not hide the layout.
    std::vector<LayoutRow> rows;
    std::unique_ptr<Recordset> duzen;
    if (!QueryOpen(*dataFiles().db, duzen, QStringLiteral("SELECT no, uzun, sol, ust, txt FROM duzen ORDER BY sira")))
        return rows;
    do
        rows.push_back(LayoutRow { FieldRead(*duzen, QStringLiteral("no")).toInt(),
            FieldRead(*duzen, QStringLiteral("uzun")).toFloat(), FieldRead(*duzen, QStringLiteral("sol")).toFloat(),
            FieldRead(*duzen, QStringLiteral("ust")).toFloat(), FieldRead(*duzen, QStringLiteral("txt")).toString() });
    while (RsNext(*duzen));
    return rows;
}

void PrintReceiptPage(const QStringList &lines)
{
    Prnx prnx;
    if (!prnx.OpenPrinter(Prnx::Raw, QString()))
        return;
    prnx.YeniSayfa();
    for (const QString &line : lines)
        prnx.Lprint(line, ReceiptColumns, true);
    prnx.SayfaBitti(false);
    prnx.ClosePrinter();
}
