#include "ledger/OfficialLedgerScreen.h"

#include "books/AccessLayer.h"
#include "books/Clock.h"
#include "books/DataFiles.h"
#include "controls/DcList.h"
#include "controls/OpenInMain.h"
#include "controls/RangeBox.h"
#include "controls/XText.h"
#include "ledger/OfficialLedgerList.h"
#include "money/DayNumber.h"
#include "printing/PrintPreset.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

enum Field { FirstNo = 0, LastNo, FirstDate, LastDate };

LedgerAmounts amountsOf(const Recordset &row)
{
    return { FieldRead(row, QStringLiteral("brut")).value<Currency>(),
        FieldRead(row, QStringLiteral("stopaj")).value<Currency>(),
        FieldRead(row, QStringLiteral("fon")).value<Currency>(),
        FieldRead(row, QStringLiteral("kdv")).value<Currency>(),
        FieldRead(row, QStringLiteral("tevkifat")).value<Currency>() };
}

// Whether any row of the side between the two days has VAT withheld by its payer.
bool hasWithheldVat(Database &db, int side, qint64 from, qint64 to)
{
    std::unique_ptr<Recordset> found;
    return QueryOpen(db, found,
        QStringLiteral("SELECT 1 AS n FROM makbuz m JOIN defter d ON d.oto = m.defter "
                       "WHERE m.tevkifat <> 0 AND d.islem = ?1 AND d.tarih >= ?2 AND d.tarih <= ?3 LIMIT 1"),
        { side, from, to });
}

} // namespace

OfficialLedgerScreen::OfficialLedgerScreen(QWidget *parent)
    : Screen(QStringLiteral("Form12"), QStringLiteral("Serbest Meslek Defteri"), parent)
    , m_side(new QComboBox(this))
    , m_withholding(new QCheckBox(QStringLiteral("Stopaj Yazılsın"), this))
    , m_fund(new QCheckBox(QStringLiteral("Fon Yazılsın"), this))
{
    m_side->setObjectName(QStringLiteral("Combo1"));
    m_side->addItems({ QStringLiteral("Gelir"), QStringLiteral("Gider") });
    m_withholding->setObjectName(QStringLiteral("Check1_0"));
    m_withholding->setAccessibleName(m_withholding->text());
    m_fund->setObjectName(QStringLiteral("Check1_1"));
    m_fund->setAccessibleName(m_fund->text());
    makeField(FirstNo, XText::NumberFormat, 99999999)->setValue(1);
    makeField(LastNo, XText::NumberFormat, 99999999)->setValue(99999999);
    makeField(FirstDate, XText::DateFormat, 10);
    makeField(LastDate, XText::DateFormat, 10);
    QPushButton *printButton
        = addCommand(QStringLiteral("Command1"), QStringLiteral(" Yazdır (F8) "), Qt::Key_F8, [this] { print(); });
    QPushButton *listButton = addCommand(
        QStringLiteral("Command2"), QStringLiteral(" Ekrana Listele (F7) "), Qt::Key_F7, [this] { listOnScreen(); });

    auto *book = new QHBoxLayout;
    book->addWidget(labelFor(QStringLiteral("&Defter"), m_side));
    book->addWidget(m_side, 1);
    auto *ranges = new QHBoxLayout;
    ranges->addWidget(RangeBox(QStringLiteral("Sıra No"), m_fields[FirstNo], m_fields[LastNo], this));
    ranges->addWidget(RangeBox(QStringLiteral("Tarih"), m_fields[FirstDate], m_fields[LastDate], this));
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(printButton);
    buttons->addWidget(listButton);
    auto *page = new QVBoxLayout(this);
    page->addLayout(book);
    page->addLayout(ranges);
    page->addWidget(m_withholding);
    page->addWidget(m_fund);
    page->addLayout(buttons);
    setFocusChain({ m_side, m_fields[FirstNo], m_fields[LastNo], m_fields[FirstDate], m_fields[LastDate], m_withholding,
        m_fund, printButton, listButton });
}

XText *OfficialLedgerScreen::makeField(int index, int format, double maximum)
{
    auto *field = new XText(this);
    field->setObjectName(QStringLiteral("xtext1_%1").arg(index));
    field->xTextBicim(format, maximum, format == XText::DateFormat ? Qt::AlignCenter : Qt::AlignRight, true, 0, 0);
    m_fields[index] = field;
    return field;
}

// The day number of a date field, 0 when it does not hold a date.
qint64 OfficialLedgerScreen::dayIn(int field) const
{
    return m_fields[field]->Value().toLongLong();
}

void OfficialLedgerScreen::listOnScreen()
{
    fill(0);
}

void OfficialLedgerScreen::print()
{
    m_withholding->setChecked(true); // a printed income page always has the withholding column
    const int kind = ChoosePrinter({ QStringLiteral("SERBEST MESLEK DEFTERİ"), true, true, false, true, 66, {} }, this);
    if (kind != 0)
        fill(kind);
}

void OfficialLedgerScreen::fill(int kind)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const int side = m_side->currentIndex();
    const int year = Today().year();
    qint64 from = DayNumber(QDate(year, 1, 1));
    qint64 to = DayNumber(QDate(year, 12, 31));
    Database &db = *dataFiles().db;
    std::unique_ptr<Recordset> rows;
    // Rows of the year before the first date keep their numbers.
    int counter = 0;
    if (dayIn(FirstDate) != 0) {
        if (QueryOpen(db, rows,
                QStringLiteral("SELECT count(*) AS n FROM defter WHERE islem = ?1 AND tarih >= ?2 AND tarih < ?3"),
                { side, from, dayIn(FirstDate) }))
            counter = FieldRead(*rows, QStringLiteral("n")).toInt();
        from = qMax(from, dayIn(FirstDate));
    }
    if (dayIn(LastDate) != 0)
        to = qMin(to, dayIn(LastDate));

    if (!m_listScreen) {
        m_listScreen = new OfficialLedgerList;
        m_listScreen->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_listScreen->showBook(side, m_withholding->isChecked(), m_fund->isChecked(),
        hasWithheldVat(db, side, DayNumber(QDate(year, 1, 1)), to));
    OpenInMain(m_listScreen);
    const qint64 firstNo = m_fields[FirstNo]->Value().toLongLong();
    const qint64 lastNo = m_fields[LastNo]->Value().toLongLong();
    LedgerAmounts carried;
    bool listed = false;
    if (QueryWalk(db, rows,
            QStringLiteral("SELECT d.tarih, d.evrak, d.ack, d.brut, d.stopaj, d.fon, d.kdv, m.tevkifat "
                           "FROM defter d LEFT JOIN makbuz m ON m.defter = d.oto "
                           "WHERE d.islem = ?1 AND d.tarih >= ?2 AND d.tarih <= ?3 ORDER BY d.tarih, d.oto"),
            { side, from, to })) {
        for (; !RsEof(*rows) && ++counter <= lastNo; RsNext(*rows)) {
            const LedgerAmounts amounts = amountsOf(*rows);
            if (counter >= firstNo) {
                if (!listed && carried.brut > Currency())
                    m_listScreen->addRow(0, QDate(), QString(), QStringLiteral("Devir...."), carried);
                listed = true;
                m_listScreen->addRow(counter, FieldRead(*rows, QStringLiteral("tarih")).toDate(),
                    FieldRead(*rows, QStringLiteral("evrak")).toString(),
                    FieldRead(*rows, QStringLiteral("ack")).toString(), amounts);
            }
            carried += amounts;
        }
    }
    m_listScreen->listRows();
    QApplication::restoreOverrideCursor();
    if (kind != 0)
        m_listScreen->yazdir(kind, side);
}
