#include "ledger/LedgerScreen.h"

#include "books/AccessLayer.h"
#include "books/Clock.h"
#include "books/DataFiles.h"
#include "books/Message.h"
#include "books/Parameters.h"
#include "controls/DcList.h"
#include "controls/GridFill.h"
#include "controls/ValueLabel.h"
#include "money/AmountConventions.h"
#include "money/DayNumber.h"
#include "money/FormatAmount.h"
#include "money/RoundAmount.h"

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

namespace {

const char16_t *const labelCaptions[]
    = { u"Satır Net Tutar", u"Toplam Brüt", u"Toplam Stopaj", u"Toplam Fon", u"Toplam Kdv" };

} // namespace

LedgerScreen::LedgerScreen(QWidget *parent)
    : PostingGridScreen(QStringLiteral("Form8"), QStringLiteral("Serbest Meslek Defteri"), PostingBook::Ledger, parent)
{
    setDeleteQuestion(QStringLiteral("Kayıt Silinecek Eminmisiniz ?"));
    setMissingKeyNotice(QString());
    list()->setAccessibleName(QStringLiteral("Defter"));
    list()->view()->setAccessibleName(QStringLiteral("Defter"));

    auto *sides = new QHBoxLayout;
    const char16_t *sideCaptions[] = { u"&Gelir", u"G&ider" };
    for (int i = 0; i < 2; ++i) {
        m_sides[i] = new QRadioButton(QString::fromUtf16(sideCaptions[i]), this);
        m_sides[i]->setObjectName(QStringLiteral("Option1_%1").arg(i));
        m_sides[i]->setAccessibleName(QString(m_sides[i]->text()).remove(u'&'));
        m_sides[i]->setEnabled(false);
        m_sides[i]->setFocusPolicy(Qt::NoFocus);
        connect(m_sides[i], &QRadioButton::clicked, this, [this, i] { showBook(i); });
        sides->addWidget(m_sides[i]);
    }
    m_sides[Gelir]->setChecked(true);
    sides->addStretch();

    auto *totals = new QGridLayout;
    for (int i = 0; i < 5; ++i) {
        const QString caption = QString::fromUtf16(labelCaptions[i]);
        m_labels[i] = new ValueLabel(caption, this);
        m_labels[i]->setObjectName(QStringLiteral("Label1_%1").arg(i));
        m_labels[i]->showAsAmount(130);
        totals->addWidget(new QLabel(caption, this), i / 3, 2 * (i % 3));
        totals->addWidget(m_labels[i], i / 3, 2 * (i % 3) + 1);
    }
    auto *page = new QVBoxLayout(this);
    page->addLayout(sides);
    page->addWidget(list(), 1);
    page->addLayout(totals);

    connect(list(), &DcList::SatirChange, this, &LedgerScreen::showRowNet);
    connect(list(), &DcList::OnKosulVar, this, &LedgerScreen::grossChecked);
    connect(list(), &DcList::KeyDown, this, &LedgerScreen::listKey);
    list()->setEditable(true);
    showBook(Gelir);
    setFocusChain({ list() });
    QTimer::singleShot(500, this, [this] {
        m_waiting = false;
        QApplication::processEvents();
        for (QRadioButton *side : m_sides)
            side->setEnabled(true);
        load();
    });
}

void LedgerScreen::showBook(int book)
{
    m_book = book == Gider ? Gider : Gelir;
    m_sides[m_book]->setChecked(true);
    setWindowTitle(m_book == Gelir ? QStringLiteral("Serbest Meslek Defteri (Gelir)")
                                   : QStringLiteral("Serbest Meslek Defteri (Gider)"));
    list()->Reset();
    list()->Clear();
    m_labels[0]->setValue(QString());
    defineColumns();
    list()->fitToColumns();
    if (!m_waiting)
        load();
}

void LedgerScreen::defineColumns()
{
    const int onda = amountConventions().tlonda;
    const double limit = 999999999999.0;
    DcList *grid = list();
    grid->Add(QStringLiteral("t"), QStringLiteral("tarih"), QStringLiteral("Tarih"), 90, 10, 4, 0, 0);
    if (m_book == Gelir) {
        grid->Add(QStringLiteral("a"), QStringLiteral("evrak"), QStringLiteral("Evrak"), 90, 8, 0, 0, 0);
        grid->Add(QStringLiteral("a"), QStringLiteral("ack"), QStringLiteral("Açıklama"), 200, 40, 0, 0, 0);
        grid->Add(QStringLiteral("n"), QStringLiteral("brut"), QStringLiteral("Brüt"), 110, limit, 6, onda, 3);
        grid->Add(QStringLiteral("n"), QStringLiteral("stopaj"), QStringLiteral("Stopaj"), 85, limit, 0, onda, 3);
        grid->Add(QStringLiteral("n"), QStringLiteral("fon"), QStringLiteral("Fon"), 70, limit, 0, onda, 3);
        grid->Add(QStringLiteral("n"), QStringLiteral("kdv"), QStringLiteral("Kdv"), 85, limit, 0, onda, 3);
    } else {
        grid->Add(QStringLiteral("a"), QStringLiteral("evrak"), QStringLiteral("Evrak"), 100, 8, 0, 0, 0);
        grid->Add(QStringLiteral("a"), QStringLiteral("ack"), QStringLiteral("Açıklama"), 300, 40, 0, 0, 0);
        grid->Add(QStringLiteral("n"), QStringLiteral("brut"), QStringLiteral("Matrah"), 120, limit, 2, onda, 3);
        grid->Add(QStringLiteral("n"), QStringLiteral("kdv"), QStringLiteral("Kdv"), 120, limit, 0, onda, 3);
    }
    grid->Add(QStringLiteral("m"), QStringLiteral("oto"), QString(), 0, 0, 0, 0, 0);
    setKeyColumn(grid->view()->model()->columnCount() - 1);
}

// The rows of the current calendar year of the side shown, by date and entry order.
void LedgerScreen::load()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    list()->Clear();
    const int year = Today().year();
    std::unique_ptr<Recordset> rows;
    if (QueryWalk(*dataFiles().db, rows,
            QStringLiteral("SELECT * FROM defter WHERE islem = ?1 AND tarih >= ?2 AND tarih <= ?3 ORDER BY tarih, oto"),
            { m_book, DayNumber(QDate(year, 1, 1)), DayNumber(QDate(year, 12, 31)) }))
        FillGrid(*list(), *rows);
    endListing();
    list()->setFocus();
    QApplication::restoreOverrideCursor();
    recompute(0);
}

// The gross of an income row brings its withholding, fund and VAT with it; a stored row whose
// gross is confirmed unchanged keeps the taxes it was stored with (a receipt's, say).
void LedgerScreen::grossChecked(int column, const QString &, const QString &value)
{
    if (m_book != Gelir || column != Brut)
        return;
    const Currency gross = Currency::fromString(value);
    if (gross <= Currency()) {
        Message::exclamation(QStringLiteral("Sayı Olmalı.."));
        return;
    }
    LedgerPosting stored;
    if (ReadLedgerPosting(editedKey(), &stored) && stored.brut == KeptAmount(gross)) {
        list()->OnKosulReturn(true, gross.toString());
        showRowNet(list()->CurSat());
        return;
    }
    const ParameterSet &rates = parameters();
    const Currency stopaj = PercentOf(gross, rates.stopaj);
    const Currency fon = PercentOf(gross, rates.fon);
    const Currency kdv = PercentOf(gross, rates.kdv);
    list()->setText(Stopaj, stopaj.toString());
    list()->setText(Fon, fon.toString());
    list()->setText(Kdv, kdv.toString());
    list()->OnKosulReturn(true, gross.toString());
    m_labels[0]->setValue(FormatAmount(gross - (stopaj + fon) + kdv, 3));
}

void LedgerScreen::showRowNet(int row)
{
    if (m_book != Gelir)
        return;
    const Currency gross = amountAt(row, Brut);
    m_labels[0]->setValue(gross <= Currency()
            ? QString()
            : FormatAmount(gross - (amountAt(row, Stopaj) + amountAt(row, Fon)) + amountAt(row, Kdv), 3));
}

// A row keeps what the screen does not show (its account code and number), as it was stored.
void LedgerScreen::storeRow(int)
{
    DcList *grid = list();
    LedgerPosting row;
    const qint64 key = editedKey();
    ReadLedgerPosting(key, &row);
    row.islem = m_book;
    row.tarih = QDate::fromString(grid->Text(Tarih), u"dd.MM.yyyy");
    row.evrak = grid->Text(Evrak);
    row.ack = grid->Text(Ack);
    row.brut = Currency::fromString(grid->Text(Brut));
    row.stopaj = m_book == Gelir ? Currency::fromString(grid->Text(Stopaj)) : Currency();
    row.fon = m_book == Gelir ? Currency::fromString(grid->Text(Fon)) : Currency();
    row.kdv = Currency::fromString(grid->Text(kdvColumn()));
    const qint64 oto = row.tarih.isValid() ? StoreLedgerPosting(key, row) : 0;
    if (oto <= 0) {
        Message::exclamation(QStringLiteral("Hareket Kaydedilemiyor.."));
        return;
    }
    rowStored(oto);
}

Currency LedgerScreen::rowAmount(int row) const
{
    return amountAt(row, Brut);
}

// The book holds a year of rows: the totals are summed anew.
void LedgerScreen::recompute(int)
{
    Currency gross, stopaj, fon, kdv;
    for (int row = 0; row < list()->ListCount(); ++row) {
        gross += amountAt(row, Brut);
        kdv += amountAt(row, kdvColumn());
        if (m_book == Gelir) {
            stopaj += amountAt(row, Stopaj);
            fon += amountAt(row, Fon);
        }
    }
    m_labels[1]->setValue(FormatAmount(gross, 3));
    m_labels[2]->setValue(m_book == Gelir ? FormatAmount(stopaj, 3) : QString());
    m_labels[3]->setValue(m_book == Gelir ? FormatAmount(fon, 3) : QString());
    m_labels[4]->setValue(FormatAmount(kdv, 3));
}

void LedgerScreen::listKey(int key, int, int)
{
    if (key == Qt::Key_Escape)
        closeScreen();
}
