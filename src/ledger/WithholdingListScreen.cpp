#include "ledger/WithholdingListScreen.h"

#include "books/AccessLayer.h"
#include "books/Clock.h"
#include "books/DataFiles.h"
#include "books/TurkishText.h"
#include "controls/DateBounds.h"
#include "controls/DcList.h"
#include "controls/ReportGrid.h"
#include "controls/ValueLabel.h"
#include "controls/XText.h"
#include "money/DayNumber.h"
#include "money/FormatAmount.h"
#include "printing/PagedReport.h"
#include "printing/PrintPreset.h"
#include "printing/PrintSettings.h"
#include "printing/Prnx.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

WithholdingListScreen::WithholdingListScreen(QWidget *parent)
    : Screen(QStringLiteral("Form15"), QStringLiteral("Stopaj Listesi"), parent)
    , m_list(new DcList(this))
    , m_totalGross(new ValueLabel(QStringLiteral("Toplam Brüt"), this))
    , m_totalTax(new ValueLabel(QStringLiteral("Toplam Vergi"), this))
{
    m_list->setObjectName(QStringLiteral("dclist1"));
    m_list->setAccessibleName(QStringLiteral("Stopaj Listesi"));
    m_list->view()->setAccessibleName(QStringLiteral("Stopaj Listesi"));
    m_list->setZebra(true);
    m_list->setEditable(false);
    m_list->setScroll(1);
    DefineReportColumns(*m_list, columns());
    m_list->fitToColumns(16);
    m_totalGross->setObjectName(QStringLiteral("Label3_1"));
    m_totalGross->showAsAmount(115);
    m_totalTax->setObjectName(QStringLiteral("Label3_0"));
    m_totalTax->showAsAmount(115);
    QPushButton *printButton
        = addCommand(QStringLiteral("Command1"), QStringLiteral(" Yazdır (F8) "), Qt::Key_F8, [this] { print(); });
    QPushButton *sheetButton
        = addCommand(QStringLiteral("Command2"), QStringLiteral(" Excel (F6) "), Qt::Key_F6, [this] { exportSheet(); });

    auto *top = new QHBoxLayout;
    const char16_t *captions[] = { u"Başlangıç", u"Bitiş" };
    for (int i = 0; i < 2; ++i) {
        makeDateField(i);
        top->addWidget(labelFor(QString::fromUtf16(captions[i]), m_dates[i]));
        top->addWidget(m_dates[i]);
    }
    top->addStretch();
    top->addWidget(printButton);
    top->addWidget(sheetButton);
    auto *totals = new QHBoxLayout;
    totals->addStretch();
    totals->addWidget(new QLabel(QStringLiteral("Toplam"), this));
    totals->addWidget(m_totalGross);
    totals->addWidget(m_totalTax);
    auto *page = new QVBoxLayout(this);
    page->addLayout(top);
    page->addWidget(m_list, 1);
    page->addLayout(totals);
    connect(m_list, &DcList::ListFocused, this, &WithholdingListScreen::listEntered);
    setFocusChain({ m_dates[0], m_dates[1], m_list, printButton, sheetButton });
}

XText *WithholdingListScreen::makeDateField(int index)
{
    m_dates[index] = new XText(this);
    m_dates[index]->setObjectName(QStringLiteral("xtext1_%1").arg(index));
    m_dates[index]->xTextBicim(XText::DateFormat, 10, Qt::AlignCenter, true, 0, 0);
    return m_dates[index];
}

// Number, payer, tax number and office, kind, date, gross and withholding.
const ReportColumns &WithholdingListScreen::columns()
{
    static const ReportColumns declared = {
        NumberColumn(QStringLiteral("s"), QStringLiteral("Sira"), 4, 30).listedAs(QStringLiteral("S.")),
        TextColumn(QStringLiteral("adsoy"), QStringLiteral("Ad Soyad"), 40, 140).listedAs(QStringLiteral("Adı Soyadı")),
        TextColumn(QStringLiteral("verno"), QStringLiteral("Vergi No"), 15, 95),
        TextColumn(QStringLiteral("verda"), QStringLiteral("Vergi Daire"), 15, 95)
            .listedAs(QStringLiteral("V.Dairesi")),
        TextColumn(QStringLiteral("tur"), QStringLiteral("Tür"), 4, 40),
        DateColumn(QStringLiteral("donem"), QStringLiteral("Dönem"), 12, 90),
        AmountColumn(QStringLiteral("brut"), QStringLiteral("Brüt Tutar"), 15, 115).listedAs(QStringLiteral("Brüt")),
        AmountColumn(QStringLiteral("vergi"), QStringLiteral("Vergi Tutar"), 15, 115).listedAs(QStringLiteral("Vergi"))
    };
    return declared;
}

// The dates as they stand now make the query; the list reloads only when it differs from the
// last one.
void WithholdingListScreen::listEntered()
{
    // The payers, each with its card (found in any spelling of the code) and its key in the
    // Turkish order (one key for the spellings of one code), then their rows by the (islem, cari,
    // tarih) index, sorted by the keys' bytes.
    QString sql = QStringLiteral(
        "WITH p AS MATERIALIZED (SELECT c.cari AS cari, turkishkey(c.cari) AS sira, "
        "k.unv AS unv, k.vn AS vn, k.vd AS vd FROM (SELECT DISTINCT cari FROM defter WHERE islem = 0) c "
        "LEFT JOIN carkart k ON k.kod = %1) "
        "SELECT d.tarih AS donem, d.brut AS brut, d.stopaj AS vergi, p.unv AS adsoy, p.vn AS verno, p.vd AS verda "
        "FROM p JOIN defter d ON d.islem = 0 AND d.cari IS p.cari WHERE d.stopaj > 0")
                      .arg(CardCodeOf(QStringLiteral("c.cari")));
    QVariantList values;
    sql += DateBounds(QStringLiteral("d.tarih"), m_dates[0], m_dates[1], values);
    sql += QStringLiteral(" ORDER BY p.sira, d.tarih, d.oto");
    const QString query = sql + QStringLiteral("|") + QVariant(values).toStringList().join(u',');
    if (query == m_lastQuery)
        return;
    m_lastQuery = query;
    load(sql, values);
}

void WithholdingListScreen::load(const QString &sql, const QVariantList &values)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_list->Clear();
    m_rows.clear();
    Currency gross, tax;
    std::unique_ptr<Recordset> rows;
    if (QueryWalk(*dataFiles().db, rows, sql, values)) {
        for (; !RsEof(*rows); RsNext(*rows)) {
            const Currency brut = FieldRead(*rows, QStringLiteral("brut")).value<Currency>();
            const Currency vergi = FieldRead(*rows, QStringLiteral("vergi")).value<Currency>();
            QVariantList cells = { int(m_rows.size() + 1), FieldRead(*rows, QStringLiteral("adsoy")).toString(),
                FieldRead(*rows, QStringLiteral("verno")).toString(),
                FieldRead(*rows, QStringLiteral("verda")).toString(), QStringLiteral("SMK"),
                FieldRead(*rows, QStringLiteral("donem")).toDate(), QVariant::fromValue(brut),
                QVariant::fromValue(vergi) };
            m_rows.push_back(std::move(cells));
            gross += brut;
            tax += vergi;
        }
    }
    AddReportRows(*m_list, columns(), m_rows); // the printout and the totals take every row
    m_totalGross->setValue(FormatAmount(gross));
    m_totalTax->setValue(FormatAmount(tax));
    QApplication::restoreOverrideCursor();
}

void WithholdingListScreen::print()
{
    if (m_rows.empty())
        return;
    const int kind = ChoosePrinter({ QStringLiteral("Stopaj Listesi"), false, false, false, false, 33, true }, this);
    if (kind == 0)
        return;
    ReportLayout layout;
    layout.columns = columns();
    layout.pageTop = [this](Prnx &printer) { pageTop(printer); };
    layout.footRoom = 0;
    layout.captionWidth = 94;
    PrintPagedReport(kind, printSettings().title, std::move(layout), [this](PagedReport &report) {
        for (const QVariantList &row : m_rows)
            report.printRow(row);
    });
}

void WithholdingListScreen::pageTop(Prnx &prnx) const
{
    prnx.Lprint(QStringLiteral(" "), 1, true);
    prnx.Lprint(printSettings().title, 130, true, 2, true);
    prnx.Lprint(QStringLiteral("Dönem :") + m_dates[0]->Text() + QStringLiteral(" - ") + m_dates[1]->Text(), 130, true);
    prnx.Lprint(QStringLiteral(" "), 1, true);
}

void WithholdingListScreen::exportSheet()
{
    if (m_rows.empty())
        return;
    m_list->SendExel(QStringLiteral("Stopaj Listesi"), FormatDate(Today()),
        QStringLiteral("Başlangıç :") + m_dates[0]->Text(), QStringLiteral("Bitiş :") + m_dates[1]->Text());
}
