#include "accounts/CashBookScreen.h"

#include "accounts/AccountLookup.h"
#include "books/AccessLayer.h"
#include "books/Clock.h"
#include "books/DataFiles.h"
#include "books/Message.h"
#include "books/TurkishText.h"
#include "controls/DcCellEditor.h"
#include "controls/DcList.h"
#include "controls/ValueLabel.h"
#include "controls/XText.h"
#include "money/AmountConventions.h"
#include "money/DayNumber.h"
#include "money/FormatAmount.h"
#include "printing/PagedReport.h"
#include "printing/PrintPreset.h"
#include "printing/PrintSettings.h"
#include "printing/Prnx.h"

#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

namespace {

const char16_t *const positionRows[] = { u"Günlük İşlemler", u"Dünden Devir", u"Kasa Durumu" };

// A net on the side where it is positive; both sides empty when the sums are equal.
std::pair<Currency, Currency> oneSide(Currency debit, Currency credit)
{
    return debit > credit ? std::pair(debit - credit, Currency()) : std::pair(Currency(), credit - debit);
}

} // namespace

CashBookScreen::CashBookScreen(QWidget *parent)
    : PostingGridScreen(QStringLiteral("Form7"), QStringLiteral("Kasa Defteri"), PostingBook::Accounts, parent)
    , m_date(new XText(this))
    , m_accountCode(new ValueLabel(QStringLiteral("Cari"), this))
    , m_accountTitle(new ValueLabel(QStringLiteral("Cari Ünvan"), this))
    , m_accountBalance(new ValueLabel(QStringLiteral("Bakiye"), this))
{
    m_date->setObjectName(QStringLiteral("xtext1"));
    m_date->xTextBicim(XText::DateFormat, 10, Qt::AlignCenter, true, 0, 0);
    m_date->setValue(Today());
    m_date->textBox()->installEventFilter(this);
    defineColumns();
    list()->fitToColumns();
    list()->setAccessibleName(QStringLiteral("Kasa Hareketleri"));
    list()->view()->setAccessibleName(QStringLiteral("Kasa Hareketleri"));
    setKeyColumn(Oto);

    auto *printButton = new QPushButton(QStringLiteral(" Yazdır (F8) "), this);
    printButton->setObjectName(QStringLiteral("yazdir"));
    printButton->setFocusPolicy(Qt::NoFocus);
    connect(printButton, &QPushButton::clicked, this, &CashBookScreen::printDay);
    auto *top = new QHBoxLayout;
    top->addWidget(labelFor(QStringLiteral("İşlem Tarihi"), m_date));
    top->addWidget(m_date);
    top->addStretch();
    top->addWidget(printButton);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(makeAccountBox(), 1);
    bottom->addWidget(makePositionBox());
    auto *page = new QVBoxLayout(this);
    page->addLayout(top);
    page->addWidget(list(), 1);
    page->addLayout(bottom);

    connect(m_date, &XText::KeyDown, this, &CashBookScreen::dateKey);
    connect(list(), &DcList::ListFocused, this, &CashBookScreen::gridEntered);
    connect(list(), &DcList::SatirChange, this, &CashBookScreen::rowChanged);
    connect(list(), &DcList::OnKosulVar, this, &CashBookScreen::checkValue);
    connect(list(), &DcList::KeyDown, this, &CashBookScreen::listKey);
    setFocusChain({ m_date, list() });
}

// The field loses the focus while the screen is taken down; its signals must not reach it then.
CashBookScreen::~CashBookScreen()
{
    m_date->textBox()->removeEventFilter(this);
    m_date->disconnect(this);
}

void CashBookScreen::defineColumns()
{
    const int onda = amountConventions().tlonda;
    DcList *grid = list();
    grid->Add(QStringLiteral("a"), QStringLiteral("kod"), QStringLiteral("Kod"), 90, 8, 6, 0, 0);
    grid->Add(QStringLiteral("s"), QStringLiteral("em"), QStringLiteral("Em."), 40, 1, 6, 0, 0);
    grid->Add(QStringLiteral("a"), QStringLiteral("evrak"), QStringLiteral("Evrak"), 90, 8, 0, 0, 0);
    grid->Add(QStringLiteral("a"), QStringLiteral("ack"), QStringLiteral("Açıklama"), 240, 40, 0, 0, 0);
    grid->Add(QStringLiteral("n"), QStringLiteral("borc"), QStringLiteral("Borç"), 120, 9999999999.0, 0, onda, 3);
    grid->Add(QStringLiteral("n"), QStringLiteral("alacak"), QStringLiteral("Alacak"), 120, 9999999999.0, 0, onda, 3);
    grid->Add(QStringLiteral("m"), QString(), QString(), 0, 0, 0, 0, 0);
}

QWidget *CashBookScreen::makePositionBox()
{
    auto *box = new QGroupBox(QStringLiteral("Kasa"), this);
    auto *grid = new QGridLayout(box);
    grid->addWidget(new QLabel(QStringLiteral("Borç"), box), 0, 1, Qt::AlignCenter);
    grid->addWidget(new QLabel(QStringLiteral("Alacak"), box), 0, 2, Qt::AlignCenter);
    const char16_t *sides[] = { u"Borç", u"Alacak" };
    for (int r = 0; r < 3; ++r) {
        const QString caption = QString::fromUtf16(positionRows[r]);
        grid->addWidget(new QLabel(caption, box), r + 1, 0);
        for (int c = 0; c < 2; ++c) {
            auto *amount = new ValueLabel(caption + u' ' + QString::fromUtf16(sides[c]), box);
            amount->setObjectName(QStringLiteral("kasa_%1_%2").arg(r).arg(c));
            amount->showAsAmount(120);
            grid->addWidget(amount, r + 1, c + 1);
            m_position[r][c] = amount;
        }
    }
    return box;
}

QWidget *CashBookScreen::makeAccountBox()
{
    auto *box = new QGroupBox(QStringLiteral("Hesap"), this);
    auto *grid = new QGridLayout(box);
    m_accountCode->setObjectName(QStringLiteral("cariKod"));
    m_accountTitle->setObjectName(QStringLiteral("cariUnvan"));
    m_accountBalance->setObjectName(QStringLiteral("cariBakiye"));
    m_accountBalance->showAsAmount(120);
    grid->addWidget(new QLabel(QStringLiteral("Cari"), box), 0, 0);
    grid->addWidget(m_accountCode, 0, 1);
    grid->addWidget(m_accountTitle, 0, 2);
    grid->addWidget(new QLabel(QStringLiteral("Bakiye"), box), 1, 0);
    grid->addWidget(m_accountBalance, 1, 1, 1, 2, Qt::AlignLeft);
    grid->setColumnStretch(2, 1);
    return box;
}

QDate CashBookScreen::day() const
{
    return QDate::fromString(m_date->Text(), u"dd.MM.yyyy");
}

bool CashBookScreen::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_date->textBox() && event->type() == QEvent::FocusIn) {
        m_dateChecked = false; // the day is listed again on the way to the grid
        // Clicked away from an open cell: the edit ends as Esc ends it, the rows stay as stored.
        if (list()->CurrentMode() == 2) {
            list()->AlanDegisti(-101);
            QTimer::singleShot(0, m_date, [this] { m_date->setFocus(); });
        }
    }
    return PostingGridScreen::eventFilter(watched, event);
}

// The day is listed once per visit from the date field.
void CashBookScreen::gridEntered()
{
    if (!m_dateChecked)
        listTypedDay();
}

bool CashBookScreen::listTypedDay()
{
    m_dateChecked = true;
    if (!day().isValid()) {
        list()->setEditable(false);
        Message::exclamation(QStringLiteral("Hatalı Tarih.."));
        return false;
    }
    listDay(day());
    list()->setEditable(true);
    return true;
}

void CashBookScreen::listDay(QDate date)
{
    DcList *grid = list();
    grid->Clear();
    m_listedDay = date;
    m_dayDebit = m_dayCredit = Currency();
    const qint64 number = DayNumber(date);
    std::unique_ptr<Recordset> rows;
    if (QueryOpen(*dataFiles().db, rows,
            QStringLiteral("SELECT * FROM carhar WHERE islem IN (1, 3) AND tarih = ?1 ORDER BY ba, oto"), { number })) {
        for (; !RsEof(*rows); RsNext(*rows)) {
            const int row = grid->CreateNewCaption();
            if (row < 0)
                break;
            const Currency amount = FieldRead(*rows, QStringLiteral("tutar")).value<Currency>();
            const bool cashIn = FieldRead(*rows, QStringLiteral("ba")).toInt() == 1;
            grid->setCaption(row, Kod, FieldRead(*rows, QStringLiteral("kod")).toString());
            grid->setCaption(row, Em, FieldRead(*rows, QStringLiteral("islem")).toInt() == 3 ? u"E"_qs : QString());
            grid->setCaption(row, Evrak, FieldRead(*rows, QStringLiteral("evrak")).toString());
            grid->setCaption(row, Ack, FieldRead(*rows, QStringLiteral("ack")).toString());
            grid->setCaption(row, cashIn ? Borc : Alacak, amount.toString());
            grid->setCaption(row, cashIn ? Alacak : Borc, QStringLiteral("0"));
            grid->setCaption(row, Oto, FieldRead(*rows, QStringLiteral("oto")).toString());
            (cashIn ? m_dayDebit : m_dayCredit) += amount;
        }
    }
    readCarryOver(date);
    endListing();
    showPosition();
}

// Cash in and out of every day before. Like every sum over a comparison in the books, the
// amounts are taken by their absolute value.
void CashBookScreen::readCarryOver(QDate date)
{
    std::unique_ptr<Recordset> sums;
    if (!QueryOpen(*dataFiles().db, sums,
            QStringLiteral("SELECT amountsum(tutar * (ba <> 0)) AS brc, amountsum(tutar * (ba = 0)) AS ala FROM carhar "
                           "WHERE islem IN (1, 3) AND tarih < ?1"),
            { DayNumber(date) }))
        return;
    m_carryDebit = AmountSumRead(*sums, QStringLiteral("brc")).magnitude();
    m_carryCredit = AmountSumRead(*sums, QStringLiteral("ala")).magnitude();
}

void CashBookScreen::showPosition()
{
    const auto carried = oneSide(m_carryDebit, m_carryCredit);
    const auto position = oneSide(m_carryDebit + m_dayDebit, m_carryCredit + m_dayCredit);
    const Currency amounts[3][2]
        = { { m_dayDebit, m_dayCredit }, { carried.first, carried.second }, { position.first, position.second } };
    for (int r = 0; r < 3; ++r)
        for (int c = 0; c < 2; ++c)
            m_position[r][c]->setValue(FormatAmount(amounts[r][c]));
}

// A day holds few rows: the totals are summed anew.
void CashBookScreen::recompute(int)
{
    m_dayDebit = m_dayCredit = Currency();
    for (int row = 0; row < list()->ListCount(); ++row) {
        const Currency cashIn = amountAt(row, Borc);
        if (cashIn > Currency())
            m_dayDebit += cashIn;
        else
            m_dayCredit += amountAt(row, Alacak);
    }
    showPosition();
}

void CashBookScreen::showAccount(const QString &code)
{
    if (code.isEmpty() || !CariExists(code)) {
        m_accountCode->setValue(QString());
        m_accountTitle->setValue(QString());
        m_accountBalance->setValue(QString());
        return;
    }
    m_accountCode->setValue(FieldRead(*dataFiles().carkart, QStringLiteral("kod")).toString());
    m_accountTitle->setValue(FieldRead(*dataFiles().carkart, QStringLiteral("unv")).toString());
    std::unique_ptr<Recordset> balance;
    if (QueryOpen(*dataFiles().db, balance,
            QStringLiteral("SELECT amountsum(tutar * (-2 * ba + 1)) AS baki FROM carhar WHERE %1")
                .arg(AnySpelling(QStringLiteral("kod"), QStringLiteral("?1"))),
            { code }))
        m_accountBalance->setValue(FormatAmount(AmountSumRead(*balance, QStringLiteral("baki"))));
}

void CashBookScreen::rowChanged(int row)
{
    showAccount(list()->Caption(row, Kod));
}

// The code must belong to a card (an unknown one empties the cell); "E" marks a deposit.
void CashBookScreen::checkValue(int column, const QString &, const QString &value)
{
    if (column == Kod) {
        const bool known = !value.isEmpty() && CariExists(list()->Text(Kod));
        showAccount(known ? list()->Text(Kod) : QString());
        list()->OnKosulReturn(true, known ? value : QString());
    } else {
        list()->OnKosulReturn(true, value.toUpper() == u"E" ? QStringLiteral("E") : QString());
    }
}

// A row holds one side only: when both are typed, the credit amount wins.
void CashBookScreen::storeRow(int)
{
    DcList *grid = list();
    const Currency cashIn = Currency::fromString(grid->Text(Borc));
    const Currency cashOut = Currency::fromString(grid->Text(Alacak));
    if (cashIn + cashOut <= Currency()) {
        Message::notice(QStringLiteral("Tutar Yazılmamış.."));
        return;
    }
    if (!cashIn.isZero() && !cashOut.isZero())
        grid->setText(Borc, QString());
    const bool in = Currency::fromString(grid->Text(Borc)) > Currency();
    const AccountPosting posting { grid->Text(Kod), m_listedDay, grid->Text(Em) == u"E" ? 3 : 1, grid->Text(Evrak),
        grid->Text(Ack), in ? 1 : 0, in ? cashIn : cashOut };
    const qint64 oto = StoreAccountPosting(editedKey(), posting);
    if (oto > 0)
        rowStored(oto);
}

Currency CashBookScreen::rowAmount(int row) const
{
    return amountAt(row, Borc) + amountAt(row, Alacak);
}

void CashBookScreen::listKey(int key, int, int)
{
    if (key == Qt::Key_Escape) {
        m_date->setFocus();
    } else if (key == Qt::Key_F2 && list()->CurrentMode() == 2) {
        const QString code = ChooseAccount(window());
        if (!code.isEmpty())
            list()->SetTextBox(code);
        list()->editor()->setFocus();
    } else if (key == Qt::Key_F8 && list()->CurrentMode() != 2) {
        printDay();
    }
}

void CashBookScreen::dateKey(int &key, Qt::KeyboardModifiers &)
{
    if (key == Qt::Key_Escape)
        closeScreen();
    else if (key == Qt::Key_F8)
        printDay();
    else
        return;
    key = 0;
}

void CashBookScreen::printDay()
{
    if (m_dateChecked || listTypedDay())
        print();
}

// The day on one page, with the totals the screen shows.
void CashBookScreen::print()
{
    const int kind = ChoosePrinter({ QStringLiteral("Kasa Defteri"), true, true, true, true, 66, {} }, this);
    Prnx prnx;
    if (kind == 0 || !prnx.OpenPrinter(kind, printSettings().title))
        return;
    ReportLayout layout;
    layout.columns = { TextColumn(QStringLiteral("kod"), QStringLiteral("Cari"), 8, 0),
        TextColumn(QStringLiteral("em"), QStringLiteral("E"), 1, 0),
        TextColumn(QStringLiteral("evrak"), QStringLiteral("Evrak"), 8, 0),
        TextColumn(QStringLiteral("ack"), QStringLiteral("Açıklama"), 35, 0),
        AmountColumn(QStringLiteral("borc"), QStringLiteral("Borç"), 11, 0),
        AmountColumn(QStringLiteral("alacak"), QStringLiteral("Alacak"), 11, 0) };
    PagedReport page(prnx, layout);
    prnx.YeniSayfa();
    prnx.Lprint(QStringLiteral(" "), 1, true);
    prnx.Lprint(printSettings().title, 80, true, 2, true);
    prnx.Lprint(QStringLiteral("Tarih :"), 10, false, 1);
    prnx.Lprint(FormatDate(m_listedDay), 12, true);
    prnx.Lprint(QStringLiteral(" "), 1, true);
    page.printHeads();
    page.printRules();
    const DcList *grid = list();
    for (int row = 0; row < grid->ListCount(); ++row)
        page.printCells(
            { grid->Caption(row, Kod), grid->Caption(row, Em), grid->Caption(row, Evrak), grid->Caption(row, Ack),
                QVariant::fromValue(amountAt(row, Borc)), QVariant::fromValue(amountAt(row, Alacak)) });
    page.printRules();
    const char16_t *captions[] = { u"TOPLAM:", u"DEVREDEN:", u"GENEL TOPLAM:" };
    for (int r = 0; r < 3; ++r)
        page.printCaptionLine(
            QString::fromUtf16(captions[r]), { m_position[r][0]->value(), m_position[r][1]->value() }, false, 0);
    page.printRules();
    prnx.SayfaBitti(true);
    prnx.ClosePrinter();
}
