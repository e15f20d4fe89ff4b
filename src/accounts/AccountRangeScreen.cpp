#include "accounts/AccountRangeScreen.h"

#include "accounts/AccountLookup.h"
#include "books/AccessLayer.h"
#include "books/DataFiles.h"
#include "books/TurkishText.h"
#include "controls/DateBounds.h"
#include "controls/RangeBox.h"
#include "controls/XText.h"
#include "printing/PrintPreset.h"
#include "printing/PrintSettings.h"
#include "printing/Prnx.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

AccountRangeScreen::AccountRangeScreen(const QString &formName, const QString &caption, QWidget *parent)
    : Screen(formName, caption, parent)
{
    makeField(FirstCode, XText::TextFormat, true);
    makeField(LastCode, XText::TextFormat, true);
    makeField(FirstDate, XText::DateFormat, true);
    makeField(LastDate, XText::DateFormat, false);
    AttachAccountLookup(m_fields[FirstCode]);
    AttachAccountLookup(m_fields[LastCode]);
    fillCodesFromCards();

    auto *ranges = new QHBoxLayout;
    ranges->addWidget(RangeBox(QStringLiteral("Cari Kod"), m_fields[FirstCode], m_fields[LastCode], this));
    ranges->addWidget(RangeBox(QStringLiteral("Tarih"), m_fields[FirstDate], m_fields[LastDate], this));
    auto *types = new QHBoxLayout;
    const char16_t *typeCaptions[] = { u"Müşteri", u"Personel", u"Diğer" };
    for (int k = 0; k < 3; ++k) {
        m_types[k] = new QCheckBox(QString::fromUtf16(typeCaptions[k]), this);
        m_types[k]->setObjectName(QStringLiteral("Check1_%1").arg(k));
        m_types[k]->setAccessibleName(m_types[k]->text());
        m_types[k]->setChecked(true);
        types->addWidget(m_types[k]);
    }
    types->addStretch();
    QPushButton *printButton
        = addCommand(QStringLiteral("Command1"), QStringLiteral(" Yazdır (F8) "), Qt::Key_F8, [this] { print(); });
    QPushButton *listButton = addCommand(
        QStringLiteral("Command2"), QStringLiteral(" Ekrana Listele (F7) "), Qt::Key_F7, [this] { listOnScreen(); });
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(printButton);
    buttons->addWidget(listButton);
    auto *page = new QVBoxLayout(this);
    page->addLayout(ranges);
    page->addLayout(types);
    page->addLayout(buttons);
    setFocusChain({ m_fields[FirstCode], m_fields[LastCode], m_fields[FirstDate], m_fields[LastDate], m_types[0],
        m_types[1], m_types[2], printButton, listButton });
}

XText *AccountRangeScreen::makeField(int index, int format, bool autoSelect)
{
    auto *field = new XText(this);
    field->setObjectName(QStringLiteral("xtext1_%1").arg(index));
    field->xTextBicim(format, format == XText::DateFormat ? 10 : 8,
        format == XText::DateFormat ? Qt::AlignCenter : Qt::AlignLeft, autoSelect, 0, 0);
    m_fields[index] = field;
    return field;
}

// The first and the last code in the cards' code order: the whole book.
void AccountRangeScreen::fillCodesFromCards()
{
    std::unique_ptr<Recordset> ends;
    if (!QueryOpen(*dataFiles().db, ends,
            QStringLiteral("SELECT (SELECT kod FROM carkart ORDER BY kod COLLATE TR LIMIT 1) AS ilk, "
                           "(SELECT kod FROM carkart ORDER BY kod COLLATE TR DESC LIMIT 1) AS son")))
        return;
    m_fields[FirstCode]->setText(FieldRead(*ends, QStringLiteral("ilk")).toString());
    m_fields[LastCode]->setText(FieldRead(*ends, QStringLiteral("son")).toString());
}

QString AccountRangeScreen::rangeCondition(QVariantList &values, Listed listed) const
{
    const QString first = m_fields[FirstCode]->Text();
    const QString last = m_fields[LastCode]->Text();
    QString codes;
    if (listed == Listed::CardsOnly && holdsEveryCard(first, last)) {
        codes = QStringLiteral("1");
    } else if (CaseSpellings(first).contains(last)) {
        // One account, however its two ends are spelled: its rows in any case spelling of the
        // code, as the other screens of one account find them.
        values << first;
        codes = AnySpelling(QStringLiteral("c.kod"), QStringLiteral("?%1").arg(values.size()));
    } else {
        // The codes in the range are the Turkish order's; the index still answers, read for the
        // codes that occur (one look-up per distinct code), then for the rows of those in the range.
        values << first << last;
        codes = QStringLiteral("c.kod IN (WITH RECURSIVE kodlar(kod) AS (SELECT min(kod) FROM carhar UNION ALL "
                               "SELECT (SELECT min(kod) FROM carhar WHERE kod > kodlar.kod) FROM kodlar "
                               "WHERE kodlar.kod IS NOT NULL) SELECT kod FROM kodlar WHERE kod COLLATE TR BETWEEN "
                               "?%1 AND ?%2)")
                    .arg(values.size() - 1)
                    .arg(values.size());
    }
    return codes + DateBounds(QStringLiteral("c.tarih"), m_fields[FirstDate], m_fields[LastDate], values);
}

// No card lies outside the codes from first to last, as on opening (the first and the last card).
bool AccountRangeScreen::holdsEveryCard(const QString &first, const QString &last)
{
    std::unique_ptr<Recordset> outside;
    return QueryOpen(*dataFiles().db, outside,
               QStringLiteral("SELECT EXISTS (SELECT 1 FROM carkart WHERE kod COLLATE TR < ?1 OR kod COLLATE TR > ?2) "
                              "AS disarida"),
               { first, last })
        && FieldRead(*outside, QStringLiteral("disarida")).toInt() == 0;
}

void AccountRangeScreen::print()
{
    const int kind
        = ChoosePrinter({ QStringLiteral("GENEL BORÇ ALACAK LİSTESİ"), true, true, false, true, 66, {} }, this);
    if (kind != 0)
        printOn(kind);
}

bool AccountRangeScreen::admits(int tip) const
{
    return tip < 0 || tip > 2 || m_types[tip]->isChecked();
}

QString AccountRangeScreen::codeRangeText() const
{
    return m_fields[FirstCode]->Text() + QStringLiteral(" - ") + m_fields[LastCode]->Text();
}

QString AccountRangeScreen::dateRangeText() const
{
    return m_fields[FirstDate]->Text() + QStringLiteral(" - ") + m_fields[LastDate]->Text();
}

void AccountRangeScreen::printRangeHead(Prnx &prnx) const
{
    prnx.Lprint(QStringLiteral(" "), 1, true);
    prnx.Lprint(printSettings().title, 132, true, 2, true);
    prnx.Lprint(QStringLiteral(" "), 1, true);
    prnx.Lprint(QStringLiteral("Cari Aralık : "), 15, false, 1);
    prnx.Lprint(codeRangeText(), 100, true);
    prnx.Lprint(QStringLiteral("Tarih Aralık : "), 15, false, 1);
    prnx.Lprint(dateRangeText(), 102);
    prnx.Lprint(QStringLiteral("Sayfa :"), 8, false, 1);
    prnx.Lprint(QString::number(prnx.SayfaSayisi()), 5, true);
    prnx.Lprint(QStringLiteral(" "), 1, true);
}
