#include "accounts/AccountCardsScreen.h"

#include "accounts/AccountLookup.h"
#include "accounts/BalancePanel.h"
#include "books/AccessLayer.h"
#include "books/DataFiles.h"
#include "books/Message.h"
#include "books/TurkishText.h"
#include "controls/ShrinkEffect.h"
#include "controls/ValueLabel.h"
#include "controls/XText.h"
#include "money/AmountConventions.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

struct CardField
{
    const char16_t *label;
    const char16_t *column; // the carkart field
    int limit;
};

const std::array<CardField, 12> cardFields = { {
    { u"Kod", u"kod", 8 },
    { u"Ünvan", u"unv", 40 },
    { u"Adres", u"adr1", 40 },
    { u"Adres 2", u"adr2", 40 },
    { u"V.Dairesi", u"vd", 15 },
    { u"V.No", u"vn", 15 },
    { u"Aylık Brüt Ücret", u"ucret", 999999999 },
    { u"Cari Tip", u"tip", 2 },
    { u"Not 1", u"not1", 40 },
    { u"Not 2", u"not2", 40 },
    { u"Not 3", u"not3", 40 },
    { u"Not 4", u"not4", 40 },
} };

const int amountField = 6;
const int typeField = 7;

QString column(int field)
{
    return QString::fromUtf16(cardFields[size_t(field)].column);
}

bool isText(int field)
{
    return field != amountField && field != typeField;
}

Recordset &cards()
{
    return *dataFiles().carkart;
}

} // namespace

QString CardTypeName(int tip)
{
    return tip == 1 ? QStringLiteral("Personel") : tip == 2 ? QStringLiteral("Diğer") : QStringLiteral("Müşteri");
}

AccountCardsScreen::AccountCardsScreen(QWidget *parent)
    : Screen(QStringLiteral("Form3"), QStringLiteral("Cari Kartlar"), parent)
    , m_type(new ValueLabel(QStringLiteral("Cari Tip Adı"), this))
    , m_balance(new BalancePanel(this))
{
    auto *toolbar = new QToolBar(this);
    toolbar->setIconSize(QSize(22, 22));
    toolbar->setFocusPolicy(Qt::NoFocus);
    addButton(3, QStyle::SP_MediaSkipBackward, QStringLiteral("go-first"), QStringLiteral("İlk Kart (Ctrl+Home)"),
        &AccountCardsScreen::goFirst);
    addButton(2, QStyle::SP_MediaSeekBackward, QStringLiteral("go-previous"), QStringLiteral("Önceki Kart (PgUp)"),
        &AccountCardsScreen::goPrevious);
    addButton(1, QStyle::SP_MediaSeekForward, QStringLiteral("go-next"), QStringLiteral("Sonraki Kart (PgDn)"),
        &AccountCardsScreen::goNext);
    addButton(0, QStyle::SP_MediaSkipForward, QStringLiteral("go-last"), QStringLiteral("Son Kart (Ctrl+End)"),
        &AccountCardsScreen::goLast);
    addButton(4, QStyle::SP_DialogSaveButton, QStringLiteral("document-save"), QStringLiteral("Kaydet (F5)"),
        &AccountCardsScreen::save);
    addButton(5, QStyle::SP_TrashIcon, QStringLiteral("edit-delete"), QStringLiteral("Sil (F7)"),
        &AccountCardsScreen::remove);
    for (size_t i : { 3, 2, 1, 0 }) // navigation first, in reading order
        toolbar->addWidget(m_buttons[i]);
    toolbar->addSeparator();
    toolbar->addWidget(m_buttons[4]);
    toolbar->addWidget(m_buttons[5]);

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    for (size_t i = 0; i < cardFields.size(); ++i) {
        const int index = int(i);
        auto *field = new XText(this);
        field->setObjectName(QStringLiteral("xtext1_%1").arg(index));
        const CardField &layout = cardFields[i];
        if (index == amountField)
            field->xTextBicim(XText::NumberFormat, layout.limit, Qt::AlignLeft, true, amountConventions().tlonda, 3);
        else if (index == typeField)
            field->xTextBicim(XText::NumberFormat, layout.limit, Qt::AlignLeft, true, 0, 3);
        else
            field->xTextBicim(XText::TextFormat, layout.limit, Qt::AlignLeft, index == 0, 0, 0);
        field->setMinimumWidth(index == typeField ? 60 : isText(index) && layout.limit > 15 ? 330 : 150);
        QLabel *label = labelFor(QString::fromUtf16(layout.label), field);
        if (index == 3)
            label->clear(); // the second address line goes without a caption
        grid->addWidget(label, index, 0);
        grid->addWidget(field, index, 1, Qt::AlignLeft);
        connect(field, &XText::KeyDown, this, &AccountCardsScreen::fieldKey);
        m_fields[i] = field;
    }
    auto *typeRow = new QHBoxLayout;
    typeRow->addWidget(m_fields[typeField]);
    m_type->setObjectName(QStringLiteral("cariTip"));
    m_type->setLeastWidth(80);
    typeRow->addWidget(m_type);
    typeRow->addWidget(new QLabel(QStringLiteral("(0:Müşteri 1:Personel 2:Diğer)"), this));
    typeRow->addStretch();
    grid->addLayout(typeRow, typeField, 1);
    AttachAccountLookup(m_fields[0]);
    connect(m_fields[0], &XText::Left, this, &AccountCardsScreen::codeLeft);

    auto *balanceBox = new QGroupBox(QStringLiteral("Hesap Durumu"), this);
    auto *balanceLayout = new QVBoxLayout(balanceBox);
    balanceLayout->addWidget(m_balance);
    balanceLayout->addStretch();

    auto *body = new QHBoxLayout;
    body->addLayout(grid);
    body->addSpacing(12);
    body->addWidget(balanceBox, 0, Qt::AlignTop);
    auto *page = new QVBoxLayout(this);
    page->addWidget(toolbar);
    page->addLayout(body);
    page->addStretch();

    setFocusChain({ m_fields[0], m_fields[1], m_fields[2], m_fields[3], m_fields[4], m_fields[5], m_fields[6],
        m_fields[7], m_fields[8], m_fields[9], m_fields[10], m_fields[11] });
}

// The fields lose the focus while the screen is taken down; their signals must not reach it then.
AccountCardsScreen::~AccountCardsScreen()
{
    for (XText *field : m_fields)
        field->disconnect(this);
}

void AccountCardsScreen::addButton(int index, QStyle::StandardPixmap picture, const QString &themeIcon,
    const QString &text, void (AccountCardsScreen::*action)())
{
    auto *button = new QToolButton(this);
    button->setObjectName(QStringLiteral("Command1_%1").arg(index));
    button->setIcon(QIcon::fromTheme(themeIcon, style()->standardIcon(picture)));
    button->setToolTip(text);
    button->setAccessibleName(text);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoRaise(true);
    connect(button, &QToolButton::clicked, this, action);
    m_buttons[size_t(index)] = button;
}

void AccountCardsScreen::fieldKey(int &key, Qt::KeyboardModifiers &modifiers)
{
    const bool control = modifiers & Qt::ControlModifier;
    if (key == Qt::Key_End && control)
        goLast();
    else if (key == Qt::Key_PageDown)
        goNext();
    else if (key == Qt::Key_PageUp)
        goPrevious();
    else if (key == Qt::Key_Home && control)
        goFirst();
    else if (key == Qt::Key_F5)
        save();
    else if (key == Qt::Key_F7)
        remove();
    else if (key == Qt::Key_Escape)
        closeScreen();
    else
        return;
    key = 0;
}

void AccountCardsScreen::codeLeft()
{
    const QString code = m_fields[0]->Text();
    if (code == m_lastKod)
        return;
    m_lastKod = code;
    if (CariExists(code))
        display();
    else
        clearCard();
}

void AccountCardsScreen::display()
{
    for (size_t i = 1; i < m_fields.size(); ++i)
        if (isText(int(i)))
            m_fields[i]->setText(FieldRead(cards(), column(int(i))).toString());
    m_fields[amountField]->setValue(FieldRead(cards(), column(amountField)));
    const int type = FieldRead(cards(), column(typeField)).toInt();
    m_fields[typeField]->setValue(type);
    m_type->setValue(CardTypeName(type));
    m_balance->showAccount(m_fields[0]->Text());
}

void AccountCardsScreen::showMoved(bool moved)
{
    if (!moved)
        return;
    const QString code = FieldRead(cards(), QStringLiteral("kod")).toString();
    m_fields[0]->setText(code);
    m_lastKod = code;
    display();
}

void AccountCardsScreen::goLast()
{
    showMoved(cards().moveLast());
}

void AccountCardsScreen::goNext()
{
    showMoved(RsNext(cards()));
}

void AccountCardsScreen::goPrevious()
{
    showMoved(RsPrev(cards()));
}

void AccountCardsScreen::goFirst()
{
    showMoved(cards().moveFirst());
}

void AccountCardsScreen::clearCard()
{
    for (int i = 1; i <= 5; ++i)
        m_fields[size_t(i)]->setText(QString());
    m_fields[amountField]->setValue(0);
    m_fields[typeField]->setValue(0);
    m_type->setValue(QString());
    m_balance->clear();
}

void AccountCardsScreen::save()
{
    const QString code = m_fields[0]->Text();
    if (code.trimmed().isEmpty())
        return;
    if (CariExists(code)) {
        RsEdit(cards());
    } else {
        RsAddNew(cards());
        FieldWrite(cards(), QStringLiteral("kod"), code);
    }
    for (size_t i = 1; i < m_fields.size(); ++i)
        if (isText(int(i)))
            FieldWrite(cards(), column(int(i)), m_fields[i]->Text());
    FieldWrite(cards(), column(amountField), QVariant::fromValue(m_fields[amountField]->amount()));
    FieldWrite(cards(), column(typeField), m_fields[typeField]->Value());
    if (RsUpdate(cards()))
        ShrinkEffect(true);
    else
        Message::exclamation(QStringLiteral("Cari Kartlar Yazılamıyor.."));
}

void AccountCardsScreen::remove()
{
    const QString code = m_fields[0]->Text();
    if (code.trimmed().isEmpty())
        return;
    if (!CariExists(code)) {
        Message::exclamation(QStringLiteral("Silinecek Cari Kart Bulunamadı..."));
        return;
    }
    if (!Message::question(QStringLiteral("Kart Silinecek Eminmisiniz ?")))
        return;
    if (!RsDelete(cards())) {
        Message::exclamation(QStringLiteral("Kart Silinemedi."));
        return;
    }
    SqlExecute(*dataFiles().db,
        QStringLiteral("DELETE FROM carhar WHERE %1").arg(AnySpelling(QStringLiteral("kod"), QStringLiteral("?1"))),
        { code });
    ShrinkEffect(false);
    clearCard();
    m_fields[0]->setText(QString());
}
