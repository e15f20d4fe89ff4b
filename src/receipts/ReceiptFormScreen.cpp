#include "receipts/ReceiptFormScreen.h"

#include "accounts/AccountLookup.h"
#include "books/AccessLayer.h"
#include "books/Clock.h"
#include "books/DataFiles.h"
#include "books/Message.h"
#include "books/Postings.h"
#include "controls/ShrinkEffect.h"
#include "controls/XText.h"
#include "money/AmountConventions.h"
#include "money/DayNumber.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

ReceiptFormScreen::ReceiptFormScreen(
    const QString &formName, const QString &caption, int descriptionLength, QWidget *parent)
    : Screen(formName, caption, parent)
    , m_grid(new QGridLayout)
{
    m_grid->setHorizontalSpacing(10);
    addField(QStringLiteral("Makbuz No"), XText::NumberFormat, 99999999);
    addField(QStringLiteral("Tarih"), XText::DateFormat, 10);
    addField(QStringLiteral("Cari Kod"), XText::TextFormat, 8);
    addField(QStringLiteral("Unvan"), XText::TextFormat, 50);
    addField(QStringLiteral("Adres"), XText::TextFormat, 50);
    addField(QStringLiteral("Adres 2"), XText::TextFormat, 50);
    addField(QStringLiteral("V. Dairesi"), XText::TextFormat, 15);
    addField(QStringLiteral("Vergi No"), XText::TextFormat, 15);
    addField(QStringLiteral("Açıklama"), XText::TextFormat, descriptionLength);
    qobject_cast<QLabel *>(m_grid->itemAtPosition(Address2, 0)->widget())->clear(); // the second line has no caption
    AttachAccountLookup(field(Code));
    connect(field(Code), &XText::Left, this, &ReceiptFormScreen::fillFromAccount);
}

// The fields lose the focus while the screen is taken down; their signals must not reach it then.
ReceiptFormScreen::~ReceiptFormScreen()
{
    for (XText *each : m_fields)
        each->disconnect(this);
}

XText *ReceiptFormScreen::addField(const QString &label, int format, double limit)
{
    const int index = int(m_fields.size());
    auto *each = new XText(this);
    each->setObjectName(QStringLiteral("xtext1_%1").arg(index));
    each->xTextBicim(format, limit, format == XText::DateFormat ? Qt::AlignCenter : Qt::AlignLeft, true, 0, 0);
    each->setMinimumWidth(format == XText::TextFormat && limit > 15 ? 360 : 150);
    m_grid->addWidget(labelFor(label, each), index, 0);
    m_grid->addWidget(each, index, 1, Qt::AlignLeft);
    m_fields.push_back(each);
    return each;
}

XText *ReceiptFormScreen::addAmountField(const QString &label, int grup)
{
    XText *amount = addField(label, XText::NumberFormat, MaxAmountEntry);
    amount->setOnda(amountConventions().tlonda);
    amount->setGrup(grup);
    return amount;
}

XText *ReceiptFormScreen::addNumberField(const QString &label, double limit)
{
    return addField(label, XText::NumberFormat, limit);
}

void ReceiptFormScreen::finishLayout(const std::vector<XText *> &focusOrder)
{
    QPushButton *saveButton
        = addCommand(QStringLiteral("kaydet"), QStringLiteral(" Kaydet (F5) "), Qt::Key_F5, [this] { save(); });
    QPushButton *printButton
        = addCommand(QStringLiteral("yazdir"), QStringLiteral(" Yazdır (F8) "), Qt::Key_F8, [this] { print(); });
    saveButton->setFocusPolicy(Qt::NoFocus);
    printButton->setFocusPolicy(Qt::NoFocus);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(saveButton);
    buttons->addWidget(printButton);
    auto *page = new QVBoxLayout(this);
    page->addLayout(m_grid);
    page->addLayout(buttons);
    page->addStretch();
    QWidget *previous = nullptr;
    for (XText *each : focusOrder) {
        if (previous)
            setTabOrder(previous, each);
        previous = each;
    }
    setFocusChain({ focusOrder.front() });
}

void ReceiptFormScreen::resetFields(Currency last)
{
    field(Number)->setValue(QVariant::fromValue(last + Currency::fromUnits(1)));
    field(Date)->setValue(Today());
    for (size_t i = Code; i < m_fields.size(); ++i) {
        m_fields[i]->setText(QString());
        m_fields[i]->setValue(0);
        if (m_fields[i]->TextTip() == XText::NumberFormat)
            m_fields[i]->setOnda(amountConventions().tlonda);
    }
}

// Esc closes the receipt from every control, the check boxes included.
void ReceiptFormScreen::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        closeScreen();
    else
        Screen::keyPressEvent(event);
}

void ReceiptFormScreen::fillFromAccount()
{
    if (!CariExists(field(Code)->Text()))
        return;
    Recordset &cards = *dataFiles().carkart;
    const char16_t *columns[] = { u"unv", u"adr1", u"adr2", u"vd", u"vn" };
    for (int i = 0; i < 5; ++i)
        field(Title + i)->setText(FieldRead(cards, QString::fromUtf16(columns[i])).toString());
    accountFilled();
}

void ReceiptFormScreen::focusCodeField()
{
    QTimer::singleShot(0, field(Code), [code = field(Code)] { code->setFocus(); });
}

QDate ReceiptFormScreen::receiptDate() const
{
    return DateFromDayNumber(field(Date)->Value().toLongLong());
}

bool ReceiptFormScreen::postable() const
{
    if (field(Date)->Value().toLongLong() <= 0) {
        Message::exclamation(QStringLiteral("Hatalı Tarih Girildi.\nMakbuz Kaydedilmedi."));
        return false;
    }
    if (field(Code)->Text().trimmed().isEmpty()) {
        Message::exclamation(QStringLiteral("Cari Kod Girilmemiş.\nMakbuz Kaydedilmedi."));
        return false;
    }
    return true;
}

qint64 ReceiptFormScreen::postToAccount(int islem, int ba, Currency amount)
{
    const AccountPosting posting { field(Code)->Text(), receiptDate(), islem, field(Number)->Text(),
        field(Description)->Text(), ba, amount };
    const qint64 oto = AddAccountPosting(posting);
    if (oto > 0)
        ShrinkEffect(true);
    else
        Message::exclamation(QStringLiteral("Kayıt Cari Hareketlere Kaydedilemedi.."));
    return oto;
}
