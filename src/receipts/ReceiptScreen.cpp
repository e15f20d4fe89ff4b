#include "receipts/ReceiptScreen.h"

#include "accounts/AccountLookup.h"
#include "controls/XText.h"
#include "core/AccessLayer.h"
#include "core/Clock.h"
#include "core/DataFiles.h"
#include "core/Message.h"
#include "core/Parameters.h"
#include "core/ShrinkEffect.h"
#include "money/AmountConventions.h"
#include "money/DayNumber.h"
#include "money/FormatAmount.h"
#include "printing/PrintSettings.h"
#include "printing/PrinterSetupDialog.h"
#include "receipts/ReceiptCalculation.h"
#include "receipts/ReceiptPage.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace {

struct ReceiptField
{
    const char16_t *label;
    int format;
    double limit;
};

const std::array<ReceiptField, 14> receiptFields = { {
    { u"Makbuz No", XText::NumberFormat, 99999999 },
    { u"Tarih", XText::DateFormat, 10 },
    { u"Cari Kod", XText::TextFormat, 8 },
    { u"Unvan", XText::TextFormat, 50 },
    { u"Adres", XText::TextFormat, 50 },
    { u"Adres 2", XText::TextFormat, 50 },
    { u"V. Dairesi", XText::TextFormat, 15 },
    { u"Vergi No", XText::TextFormat, 15 },
    { u"Açıklama", XText::TextFormat, 50 },
    { u"Brüt Ücret", XText::NumberFormat, 1e17 },
    { u"Stopaj", XText::NumberFormat, 1e17 },
    { u"Fon", XText::NumberFormat, 1e17 },
    { u"Net Ücret", XText::NumberFormat, 1e17 },
    { u"K.D.V.", XText::NumberFormat, 1e17 },
} };

enum Field {
    Number = 0,
    Date = 1,
    Code = 2,
    Title = 3,
    Description = 8,
    Gross = 9,
    Stopaj = 10,
    Fon = 11,
    Net = 12,
    Kdv = 13
};

QString rateText(float rate)
{
    return QStringLiteral("% ") + QString::number(double(rate), 'g', 7);
}

ReceiptRates rates()
{
    const ParameterSet &set = parameters();
    return ReceiptRates { set.stopaj, set.fon, set.kdv };
}

} // namespace

ReceiptScreen::ReceiptScreen(QWidget *parent)
    : Screen(QStringLiteral("Form1"), QStringLiteral("Serbest Meslek Makbuzu"), parent)
    , m_withhold(new QCheckBox(QStringLiteral("Stopaj Kesilsin"), this))
    , m_levy(new QCheckBox(QStringLiteral("Fon Kesilsin"), this))
    , m_totalLabel(new QLabel(this))
{
    m_withhold->setObjectName(QStringLiteral("Check1_0"));
    m_levy->setObjectName(QStringLiteral("Check1_1"));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    for (size_t i = 0; i < receiptFields.size(); ++i) {
        const int index = int(i);
        const ReceiptField &layout = receiptFields[i];
        auto *field = new XText(this);
        field->setObjectName(QStringLiteral("xtext1_%1").arg(index));
        const bool amount = index >= Gross;
        field->xTextBicim(layout.format, layout.limit,
            layout.format == XText::DateFormat ? Qt::AlignCenter : Qt::AlignLeft, true,
            amount ? amountConventions().tlonda : 0, amount ? 3 : 0);
        field->setMinimumWidth(layout.format == XText::TextFormat && layout.limit > 15 ? 360 : 150);
        QLabel *label = labelFor(QString::fromUtf16(layout.label), field);
        if (index == 5)
            label->clear();
        grid->addWidget(label, index, 0);
        grid->addWidget(field, index, 1, Qt::AlignLeft);
        connect(field, &XText::KeyDown, this, &ReceiptScreen::fieldKey);
        m_fields[i] = field;
    }
    m_fields[Stopaj]->setLocked(true);
    m_fields[Fon]->setLocked(true);
    m_fields[Stopaj]->setFocusPolicy(Qt::NoFocus);
    m_fields[Fon]->setFocusPolicy(Qt::NoFocus);
    const ParameterSet &set = parameters();
    grid->addWidget(new QLabel(rateText(set.stopaj), this), Stopaj, 2);
    grid->addWidget(new QLabel(rateText(set.fon), this), Fon, 2);
    grid->addWidget(new QLabel(rateText(set.kdv), this), Kdv, 2);
    grid->addWidget(m_withhold, Stopaj, 3);
    grid->addWidget(m_levy, Fon, 3);

    auto *totalCaption = new QLabel(QStringLiteral("TOPLAM"), this);
    QFont bold = totalCaption->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.3);
    totalCaption->setFont(bold);
    m_totalLabel->setFont(bold);
    m_totalLabel->setObjectName(QStringLiteral("toplam"));
    m_totalLabel->setAccessibleName(QStringLiteral("TOPLAM"));
    m_totalLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_totalLabel->setMinimumWidth(150);
    m_totalLabel->setFrameShape(QFrame::StyledPanel);
    grid->addWidget(totalCaption, Kdv + 1, 0);
    grid->addWidget(m_totalLabel, Kdv + 1, 1, Qt::AlignLeft);

    auto *saveButton = new QPushButton(QStringLiteral(" Kaydet (F5) "), this);
    saveButton->setObjectName(QStringLiteral("kaydet"));
    auto *printButton = new QPushButton(QStringLiteral(" Yazdır (F8) "), this);
    printButton->setObjectName(QStringLiteral("yazdir"));
    saveButton->setFocusPolicy(Qt::NoFocus);
    printButton->setFocusPolicy(Qt::NoFocus);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(saveButton);
    buttons->addWidget(printButton);
    auto *page = new QVBoxLayout(this);
    page->addLayout(grid);
    page->addLayout(buttons);

    AttachAccountLookup(m_fields[Code]);
    connect(m_fields[Code], &XText::Left, this, &ReceiptScreen::fillFromAccount);
    connect(m_fields[Gross], &XText::Change, this, &ReceiptScreen::grossChanged);
    connect(m_fields[Net], &XText::Change, this, &ReceiptScreen::netChanged);
    connect(m_fields[Kdv], &XText::Change, this, &ReceiptScreen::updateTotal);
    connect(m_withhold, &QCheckBox::clicked, this, &ReceiptScreen::grossChanged);
    connect(m_levy, &QCheckBox::clicked, this, &ReceiptScreen::grossChanged);
    connect(saveButton, &QPushButton::clicked, this, &ReceiptScreen::save);
    connect(printButton, &QPushButton::clicked, this, &ReceiptScreen::print);

    reset();
    setFocusChain({ m_fields[0], m_fields[1], m_fields[2], m_fields[3], m_fields[4], m_fields[5], m_fields[6],
        m_fields[7], m_fields[8], m_fields[9], m_fields[12], m_fields[13] });
}

// The fields lose the focus while the screen is taken down; their signals must not reach it then.
ReceiptScreen::~ReceiptScreen()
{
    for (XText *field : m_fields)
        field->disconnect(this);
}

void ReceiptScreen::reset()
{
    m_calculating = true;
    m_fields[Number]->setValue(QVariant::fromValue(parameters().serino + Currency::fromUnits(1)));
    m_fields[Date]->setValue(Today());
    for (int i = Code; i <= Kdv; ++i) {
        m_fields[size_t(i)]->setText(QString());
        m_fields[size_t(i)]->setValue(0);
        if (i >= Gross)
            m_fields[size_t(i)]->setOnda(amountConventions().tlonda);
    }
    m_fields[Description]->setText(GenelTxtGet(QStringLiteral("lastack")));
    m_total = Currency();
    m_totalLabel->clear();
    m_calculating = false;
}

void ReceiptScreen::fieldKey(int &key, Qt::KeyboardModifiers &)
{
    if (key == Qt::Key_Escape)
        closeScreen();
    else if (key == Qt::Key_F5)
        save();
    else if (key == Qt::Key_F8)
        print();
    else
        return;
    key = 0;
}

void ReceiptScreen::grossChanged()
{
    if (m_calculating)
        return;
    const ReceiptAmounts a
        = FromGross(m_fields[Gross]->amount(), rates(), m_withhold->isChecked(), m_levy->isChecked());
    showAmounts(a.gross, a.stopaj, a.fon, a.net, a.kdv, false);
}

void ReceiptScreen::netChanged()
{
    if (m_calculating)
        return;
    const ReceiptAmounts a = FromNet(m_fields[Net]->amount(), rates(), m_withhold->isChecked(), m_levy->isChecked());
    showAmounts(a.gross, a.stopaj, a.fon, a.net, a.kdv, true);
}

void ReceiptScreen::showAmounts(Currency gross, Currency stopaj, Currency fon, Currency net, Currency kdv, bool keepNet)
{
    m_calculating = true;
    if (keepNet)
        m_fields[Gross]->setValue(QVariant::fromValue(gross));
    m_fields[Stopaj]->setValue(QVariant::fromValue(stopaj));
    m_fields[Fon]->setValue(QVariant::fromValue(fon));
    if (!keepNet)
        m_fields[Net]->setValue(QVariant::fromValue(net));
    m_fields[Kdv]->setValue(QVariant::fromValue(kdv));
    m_calculating = false;
    updateTotal();
}

void ReceiptScreen::updateTotal()
{
    if (m_calculating)
        return;
    m_total = m_fields[Net]->amount() + m_fields[Kdv]->amount();
    m_totalLabel->setText(FormatAmount(m_total, 3));
}

void ReceiptScreen::fillFromAccount()
{
    if (!CariExists(m_fields[Code]->Text()))
        return;
    Recordset &cards = *dataFiles().carkart;
    const char16_t *columns[] = { u"unv", u"adr1", u"adr2", u"vd", u"vn" };
    for (int i = 0; i < 5; ++i)
        m_fields[size_t(Title + i)]->setText(FieldRead(cards, QString::fromUtf16(columns[i])).toString());
    m_fields[Gross]->setValue(FieldRead(cards, QStringLiteral("ucret")));
    grossChanged();
}

void ReceiptScreen::save()
{
    if (m_total <= Currency())
        return;
    GenelTxtSet(QStringLiteral("lastack"), m_fields[Description]->Text());
    parameters().serino = m_fields[Number]->amount();
    GenelCurrenSet(QStringLiteral("serino"), parameters().serino);
    post();
    print();
    reset();
    // After the printer dialog the window gets its focus back first; then the code field takes it.
    QTimer::singleShot(0, m_fields[Code], [field = m_fields[Code]] { field->setFocus(); });
}

void ReceiptScreen::post()
{
    const QDate date = DateFromDayNumber(m_fields[Date]->Value().toLongLong());
    Recordset &carhar = *dataFiles().carhar;
    RsAddNew(carhar);
    FieldWrite(carhar, QStringLiteral("kod"), m_fields[Code]->Text());
    FieldWrite(carhar, QStringLiteral("tarih"), date);
    FieldWrite(carhar, QStringLiteral("evrak"), m_fields[Number]->Text());
    FieldWrite(carhar, QStringLiteral("ack"), m_fields[Description]->Text());
    FieldWrite(carhar, QStringLiteral("islem"), 2);
    FieldWrite(carhar, QStringLiteral("ba"), 0);
    FieldWrite(carhar, QStringLiteral("tutar"), QVariant::fromValue(m_total));
    if (RsUpdate(carhar))
        ShrinkEffect(true);
    else
        Message::exclamation(QStringLiteral("Kayıt Cari Hareketlere Kaydedilemedi.."));

    Recordset &defter = *dataFiles().defter;
    RsAddNew(defter);
    FieldWrite(defter, QStringLiteral("sira"), 0);
    FieldWrite(defter, QStringLiteral("tarih"), date);
    FieldWrite(defter, QStringLiteral("islem"), 0);
    FieldWrite(defter, QStringLiteral("evrak"), m_fields[Number]->Text());
    FieldWrite(defter, QStringLiteral("cari"), m_fields[Code]->Text());
    FieldWrite(defter, QStringLiteral("ack"), m_fields[Title]->Text());
    FieldWrite(defter, QStringLiteral("brut"), QVariant::fromValue(m_fields[Gross]->amount()));
    FieldWrite(defter, QStringLiteral("stopaj"), QVariant::fromValue(m_fields[Stopaj]->amount()));
    FieldWrite(defter, QStringLiteral("fon"), QVariant::fromValue(m_fields[Fon]->amount()));
    FieldWrite(defter, QStringLiteral("kdv"), QVariant::fromValue(m_fields[Kdv]->amount()));
    if (RsUpdate(defter))
        ShrinkEffect(true);
    else
        Message::exclamation(QStringLiteral("Kayıt Defter Hareketlere Kaydedilemedi.."));
}

void ReceiptScreen::print()
{
    PrintSettings &record = printSettings();
    record.title = QStringLiteral("S.M. Makbuzu");
    record.titleHeading = record.dateHeading = record.pageNoHeading = record.companyHeading = false;
    record.orientation = 1;
    record.copies = 1;
    record.lines = 33;
    record.dotMatrix = true;
    if (!ShowPrinterSetup(this))
        return;
    if (!record.dotMatrix) {
        Message::exclamation(QStringLiteral("Dot-Matrix Yazıcıdan Alınabilir.."));
        return;
    }
    ReceiptValues values;
    values.number = m_fields[Number]->Text();
    values.date = m_fields[Date]->Text();
    values.title = m_fields[Title]->Text();
    values.address1 = m_fields[4]->Text();
    values.address2 = m_fields[5]->Text();
    values.taxOffice = m_fields[6]->Text();
    values.taxNumber = m_fields[7]->Text();
    values.description = m_fields[Description]->Text();
    values.gross = m_fields[Gross]->amount();
    values.stopaj = m_fields[Stopaj]->amount();
    values.fon = m_fields[Fon]->amount();
    values.net = m_fields[Net]->amount();
    values.kdv = m_fields[Kdv]->amount();
    values.total = m_total;
    const ParameterSet &set = parameters();
    values.stopajRate = set.stopaj;
    values.fonRate = set.fon;
    values.kdvRate = set.kdv;
    PrintReceiptPage(ComposeReceiptPage(values, ReadLayout()));
}
