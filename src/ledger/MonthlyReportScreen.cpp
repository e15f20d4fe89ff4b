#include "ledger/MonthlyReportScreen.h"

#include "books/AccessLayer.h"
#include "books/Clock.h"
#include "books/DataFiles.h"
#include "controls/DcList.h"
#include "money/Currency.h"
#include "money/DayNumber.h"

#include <QHeaderView>
#include <QTableView>

#include <array>

namespace {

const char16_t *const months[] = { u"Ocak", u"Şubat", u"Mart", u"Nisan", u"Mayıs", u"Haziran", u"Temmuz", u"Ağustos",
    u"Eylül", u"Ekim", u"Kasım", u"Aralık" };

constexpr int totalRow = 13;

} // namespace

MonthlyReportScreen::MonthlyReportScreen(QWidget *parent)
    : ListWindow(QStringLiteral("Form9"), QStringLiteral("Kdv, Stopaj Raporu"), parent)
{
    const auto amount = [](const char *name, const char16_t *caption) {
        return AmountColumn(QString::fromLatin1(name), QString::fromUtf16(caption), 0, 110);
    };
    setColumns(
        { TextColumn(QStringLiteral("donem"), QStringLiteral("Dönem"), 0, 80), amount("indmatrah", u"İnd.Matrah"),
            amount("indkdv", u"İnd.KDV"), amount("hesmatrah", u"Hes.Matrah"), amount("heskdv", u"Hes.KDV"),
            amount("tevkkdv", u"Tevk.KDV"), amount("stopaj", u"Stopaj"), amount("fon", u"Fon") });
    DcList *grid = list();
    grid->setScroll(0);
    const int rowHeight = grid->view()->verticalHeader()->defaultSectionSize();
    grid->setMinimumSize(80 + Fon * 110 + 4, (totalRow + 2) * rowHeight + 8);
    compute();
}

// The year's rows summed by month in the engine: income rows (islem 0) feed the computed base,
// VAT, withheld VAT, withholding and fund; every other row the deductible base and VAT. Rows
// without a date have no month and stay out.
void MonthlyReportScreen::compute()
{
    const int year = Today().year();
    std::array<std::array<Currency, Fon + 1>, 12> month {};
    std::unique_ptr<Recordset> rows;
    if (QueryOpen(*dataFiles().db, rows,
            QStringLiteral("SELECT month(d.tarih) AS ay, d.islem = 0 AS gelir, amountsum(d.brut) AS brut, "
                           "amountsum(d.stopaj) AS stopaj, amountsum(d.fon) AS fon, amountsum(d.kdv) AS kdv, "
                           "amountsum(m.tevkifat) AS tevkifat FROM defter d LEFT JOIN makbuz m ON m.defter = d.oto "
                           "WHERE d.tarih >= ?1 AND d.tarih <= ?2 GROUP BY ay, gelir"),
            { DayNumber(QDate(year, 1, 1)), DayNumber(QDate(year, 12, 31)) })) {
        do {
            const int m = FieldRead(*rows, QStringLiteral("ay")).toInt() - 1;
            if (m < 0 || m > 11)
                continue;
            if (FieldRead(*rows, QStringLiteral("gelir")).toInt() != 0) {
                month[size_t(m)][HesMatrah] += AmountSumRead(*rows, QStringLiteral("brut"));
                month[size_t(m)][HesKdv] += AmountSumRead(*rows, QStringLiteral("kdv"));
                month[size_t(m)][TevkKdv] += AmountSumRead(*rows, QStringLiteral("tevkifat"));
                month[size_t(m)][Stopaj] += AmountSumRead(*rows, QStringLiteral("stopaj"));
                month[size_t(m)][Fon] += AmountSumRead(*rows, QStringLiteral("fon"));
            } else {
                month[size_t(m)][IndMatrah] += AmountSumRead(*rows, QStringLiteral("brut"));
                month[size_t(m)][IndKdv] += AmountSumRead(*rows, QStringLiteral("kdv"));
            }
        } while (RsNext(*rows));
    }
    list()->Clear();
    std::array<Currency, Fon + 1> total {};
    for (int m = 0; m < 12; ++m) {
        QVariantList cells = { QString::fromUtf16(months[m]) };
        for (int c = IndMatrah; c <= Fon; ++c) {
            cells << QVariant::fromValue(month[size_t(m)][size_t(c)]);
            total[size_t(c)] += month[size_t(m)][size_t(c)];
        }
        addRow(cells);
    }
    addRow({ QString() });
    QVariantList totals = { QStringLiteral("TOPLAM") };
    for (int c = IndMatrah; c <= Fon; ++c)
        totals << QVariant::fromValue(total[size_t(c)]);
    addRow(totals);
}
