#include "accounts/AccountTransactionsScreen.h"

#include "accounts/AccountCardsScreen.h"
#include "accounts/AccountLookup.h"
#include "accounts/BalancePanel.h"
#include "accounts/TransactionTypeLabel.h"
#include "books/AccessLayer.h"
#include "books/DataFiles.h"
#include "books/Message.h"
#include "books/TurkishText.h"
#include "controls/DcList.h"
#include "controls/DcListModel.h"
#include "controls/ValueLabel.h"
#include "controls/XText.h"
#include "money/AmountConventions.h"
#include "money/DayNumber.h"

#include <QApplication>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace {

// The type code a type cell starts with; a blank or anything but a digit counts 0.
int typeCode(const QString &text)
{
    return !text.isEmpty() && text.front().isDigit() ? text.front().digitValue() : 0;
}

} // namespace

AccountTransactionsScreen::AccountTransactionsScreen(QWidget *parent)
    : PostingGridScreen(QStringLiteral("Form4"), QStringLiteral("Cari Hareketler"), PostingBook::Accounts, parent)
    , m_code(new XText(this))
    , m_title(new ValueLabel(QStringLiteral("Ünvan"), this))
    , m_type(new ValueLabel(QStringLiteral("Cari Tip"), this))
    , m_typePanel(makeTypePanel())
    , m_balance(new BalancePanel(this))
{
    m_code->setObjectName(QStringLiteral("xtext1"));
    m_code->xTextBicim(XText::TextFormat, 8, Qt::AlignLeft, true, 0, 0);
    m_code->setMinimumWidth(110);
    AttachAccountLookup(m_code);
    m_title->setObjectName(QStringLiteral("unvan"));
    m_title->setMinimumWidth(300);
    m_type->setObjectName(QStringLiteral("cariTip"));
    defineColumns();
    list()->fitToColumns();
    list()->setAccessibleName(QStringLiteral("Hareketler"));
    list()->view()->setAccessibleName(QStringLiteral("Hareketler"));
    setKeyColumn(Oto);

    auto *top = new QHBoxLayout;
    top->addWidget(labelFor(QStringLiteral("Cari Kod"), m_code));
    top->addWidget(m_code);
    top->addWidget(m_title, 1);
    top->addWidget(m_type);
    auto *balanceBox = new QGroupBox(QStringLiteral("Hesap Durumu"), this);
    (new QVBoxLayout(balanceBox))->addWidget(m_balance);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(m_typePanel, 0, Qt::AlignTop);
    bottom->addStretch();
    bottom->addWidget(balanceBox);
    auto *page = new QVBoxLayout(this);
    page->addLayout(top);
    page->addWidget(list(), 1);
    page->addLayout(bottom);

    connect(m_code, &XText::Left, this, &AccountTransactionsScreen::selectAccount);
    connect(m_code, &XText::KeyDown, this, &AccountTransactionsScreen::codeKey);
    connect(list(), &DcList::AlanChanged, this, &AccountTransactionsScreen::columnReached);
    connect(list(), &DcList::OnKosulVar, this, &AccountTransactionsScreen::checkValue);
    connect(list(), &DcList::KeyDown, this, &AccountTransactionsScreen::listKey);
    // A row put in between (Insert) moves the rows below it: their sums follow. A row appended
    // at the end (the entry row after a stored one) has no balance until the next recompute.
    connect(list()->view()->model(), &QAbstractItemModel::rowsInserted, this,
        [this](const QModelIndex &, int first, int last) {
            if (!m_listing && last + 1 < list()->ListCount())
                recompute(first);
        });
    connect(list(), &DcList::ChangeEditMode, m_typePanel, [this](bool editing) {
        if (!editing)
            m_typePanel->hide();
    });
    setFocusChain({ m_code, list() });
}

// The field loses the focus while the screen is taken down; its signals must not reach it then.
AccountTransactionsScreen::~AccountTransactionsScreen()
{
    m_code->disconnect(this);
}

void AccountTransactionsScreen::defineColumns()
{
    const int onda = amountConventions().tlonda;
    DcList *grid = list();
    grid->Add(QStringLiteral("t"), QStringLiteral("tarih"), QStringLiteral("Tarih"), 90, 10, 4, 0, 0);
    grid->Add(QStringLiteral("a"), QStringLiteral("evrak"), QStringLiteral("Evrak"), 80, 8, 0, 0, 0);
    grid->Add(QStringLiteral("a"), QStringLiteral("ack"), QStringLiteral("Açıklama"), 200, 40, 0, 0, 0);
    grid->Add(QStringLiteral("a"), QStringLiteral("islem"), QStringLiteral("İşlem"), 90, 50, 6, 0, 0);
    grid->Add(QStringLiteral("s"), QStringLiteral("ba"), QStringLiteral("B/A"), 35, 1, 6, 0, 0);
    grid->Add(QStringLiteral("n"), QStringLiteral("tutar"), QStringLiteral("Tutar"), 110, MaxAmountEntry, 2, onda, 3);
    grid->Add(QStringLiteral("b"), QStringLiteral("bakiye"), QStringLiteral("Bakiye"), 110, MaxAmountEntry, 2, onda, 3);
    grid->Add(QStringLiteral("m"), QStringLiteral("oto"), QString(), 0, 0, 0, 0, 0);
}

QFrame *AccountTransactionsScreen::makeTypePanel()
{
    auto *panel = new QFrame(this);
    panel->setObjectName(QStringLiteral("islemPanel"));
    panel->setFrameShape(QFrame::StyledPanel);
    auto *layout = new QHBoxLayout(panel);
    layout->setContentsMargins(4, 2, 4, 2);
    for (int islem = 0; islem <= 9; ++islem) {
        auto *choice = new QPushButton(u' ' + TransactionTypeLabel(islem), panel);
        choice->setFlat(true);
        choice->setFocusPolicy(Qt::NoFocus);
        connect(choice, &QPushButton::clicked, this, [this, choice] { list()->SetTextBox(choice->text().trimmed()); });
        layout->addWidget(choice);
    }
    panel->hide();
    return panel;
}

void AccountTransactionsScreen::selectAccount()
{
    const QString code = m_code->Text();
    if (code.trimmed().isEmpty())
        return;
    if (!CariExists(code)) {
        list()->Clear();
        m_balance->clear();
        return;
    }
    Recordset &cards = *dataFiles().carkart;
    m_title->setValue(FieldRead(cards, QStringLiteral("unv")).toString());
    m_type->setValue(CardTypeName(FieldRead(cards, QStringLiteral("tip")).toInt()));
    list()->setEditable(true);
    listTransactions(code);
}

void AccountTransactionsScreen::listTransactions(const QString &code)
{
    QApplication::processEvents();
    DcList *grid = list();
    m_listing = true;
    m_listedCode = code;
    grid->Clear();
    std::unique_ptr<Recordset> rows;
    if (QueryWalk(*dataFiles().db, rows,
            QStringLiteral("SELECT * FROM carhar WHERE %1 ORDER BY tarih, islem, ba, oto")
                .arg(AnySpelling(QStringLiteral("kod"), QStringLiteral("?1"))),
            { code })) {
        // One row past the room makes the list say that it was cut.
        std::vector<QStringList> found;
        for (; !RsEof(*rows) && int(found.size()) <= DcListModel::MaxRows; RsNext(*rows)) {
            QStringList cells(Oto + 1);
            cells[Tarih] = FormatDate(FieldRead(*rows, QStringLiteral("tarih")).toDate());
            cells[Evrak] = FieldRead(*rows, QStringLiteral("evrak")).toString();
            cells[Ack] = FieldRead(*rows, QStringLiteral("ack")).toString();
            cells[Islem] = TransactionTypeLabel(FieldRead(*rows, QStringLiteral("islem")).toInt());
            cells[Ba] = FieldRead(*rows, QStringLiteral("ba")).toInt() == 0 ? u"B"_qs : u"A"_qs;
            cells[Tutar] = FieldRead(*rows, QStringLiteral("tutar")).value<Currency>().toString();
            cells[Oto] = FieldRead(*rows, QStringLiteral("oto")).toString();
            found.push_back(std::move(cells));
        }
        grid->AddCaptionRows(std::move(found));
    }
    recompute(0); // the empty row for a new entry gets its balance with the first change
    endListing();
    m_listing = false;
}

// The running balance after every row from fromRow on, and the panel. A row's side is its B/A
// cell, its kind the type it starts with ("3" is a deposit). The sums after the rows before
// fromRow are kept, so a row stored at the end costs one step, not a walk over the account.
void AccountTransactionsScreen::recompute(int fromRow)
{
    DcList *grid = list();
    fromRow = qBound(0, fromRow, int(m_running.size()));
    m_running.resize(size_t(grid->ListCount()));
    Sums sums = fromRow > 0 ? m_running[size_t(fromRow - 1)] : Sums();
    QStringList balances;
    for (int row = fromRow; row < grid->ListCount(); ++row) {
        const bool deposit = typeCode(grid->Caption(row, Islem)) == 3;
        const Currency amount = amountAt(row, Tutar);
        if (grid->Caption(row, Ba) == u"B")
            (deposit ? sums.debitDeposit : sums.debitOther) += amount;
        else
            (deposit ? sums.creditDeposit : sums.creditOther) += amount;
        m_running[size_t(row)] = sums;
        balances << sums.balance().toString();
    }
    grid->setColumnCaptions(Bakiye, fromRow, balances);
    m_balance->showSums(sums.debitOther, sums.creditOther, sums.debitDeposit, sums.creditDeposit);
}

void AccountTransactionsScreen::storeRow(int)
{
    DcList *grid = list();
    const QDate date = QDate::fromString(grid->Text(Tarih), u"dd.MM.yyyy");
    if (!date.isValid()) {
        Message::exclamation(QStringLiteral("Hatalı Tarih Girildi.\nHareket Kaydedilmedi."));
        return;
    }
    const AccountPosting posting { m_listedCode, date, typeCode(grid->Text(Islem)), grid->Text(Evrak), grid->Text(Ack),
        grid->Text(Ba) == u"B" ? 0 : 1, Currency::fromString(grid->Text(Tutar)) };
    const qint64 oto = StoreAccountPosting(editedKey(), posting);
    if (oto > 0)
        rowStored(oto);
}

Currency AccountTransactionsScreen::rowAmount(int row) const
{
    return amountAt(row, Tutar);
}

void AccountTransactionsScreen::columnReached(int column)
{
    if (column == Islem) {
        m_typePanel->show();
    } else if (column == Ba) {
        if (list()->Text(Ba).isEmpty())
            list()->SetTextBox(QStringLiteral("B"));
        m_typePanel->hide();
    } else if (column == Ack) {
        m_typePanel->hide();
    }
}

// A digit in the type column gives its label, anything else "0-Devir"; "B", "b" or "+" in the
// B/A column give "B", anything else "A".
void AccountTransactionsScreen::checkValue(int column, const QString &, const QString &value)
{
    if (column == Islem) {
        const bool digit = !value.isEmpty() && value.front() >= u'1' && value.front() <= u'9';
        list()->OnKosulReturn(true, TransactionTypeLabel(digit ? value.front().digitValue() : 0));
    } else {
        const QString mark = value.toUpper();
        list()->OnKosulReturn(true, mark == u"B" || mark == u"+" ? QStringLiteral("B") : QStringLiteral("A"));
    }
}

void AccountTransactionsScreen::listKey(int key, int, int)
{
    if (key != Qt::Key_Escape)
        return;
    list()->setEditable(false);
    m_code->setFocus();
}

void AccountTransactionsScreen::codeKey(int &key, Qt::KeyboardModifiers &)
{
    if (key == Qt::Key_Escape) {
        key = 0;
        closeScreen();
    }
}
