#include "receipts/ReceiptScreen.h"

#include "controls/XText.h"
#include "core/AccessLayer.h"
#include "core/DataFiles.h"
#include "core/Message.h"
#include "core/Parameters.h"
#include "core/ShrinkEffect.h"
#include "money/FormatAmount.h"
#include "printing/PrintSettings.h"
#include "printing/PrinterSetupDialog.h"
#include "receipts/ReceiptCalculation.h"
#include "receipts/ReceiptPage.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

namespace {

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
    : ReceiptFormScreen(QStringLiteral("Form1"), QStringLiteral("Serbest Meslek Makbuzu"), 50, parent)
    , m_withhold(new QCheckBox(QStringLiteral("Stopaj Kesilsin"), this))
    , m_levy(new QCheckBox(QStringLiteral("Fon Kesilsin"), this))
    , m_totalLabel(new QLabel(this))
{
    addAmountField(QStringLiteral("Brüt Ücret"), 3);
    addAmountField(QStringLiteral("Stopaj"), 3);
    addAmountField(QStringLiteral("Fon"), 3);
    addAmountField(QStringLiteral("Net Ücret"), 3);
    addAmountField(QStringLiteral("K.D.V."), 3);
    for (int computed : { Stopaj, Fon }) {
        field(computed)->setLocked(true);
        field(computed)->setFocusPolicy(Qt::NoFocus);
    }
    m_withhold->setObjectName(QStringLiteral("Check1_0"));
    m_levy->setObjectName(QStringLiteral("Check1_1"));
    const ParameterSet &set = parameters();
    grid()->addWidget(new QLabel(rateText(set.stopaj), this), Stopaj, 2);
    grid()->addWidget(new QLabel(rateText(set.fon), this), Fon, 2);
    grid()->addWidget(new QLabel(rateText(set.kdv), this), Kdv, 2);
    grid()->addWidget(m_withhold, Stopaj, 3);
    grid()->addWidget(m_levy, Fon, 3);

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
    grid()->addWidget(totalCaption, Kdv + 1, 0);
    grid()->addWidget(m_totalLabel, Kdv + 1, 1, Qt::AlignLeft);

    connect(field(Gross), &XText::Change, this, &ReceiptScreen::grossChanged);
    connect(field(Net), &XText::Change, this, &ReceiptScreen::netChanged);
    connect(field(Kdv), &XText::Change, this, &ReceiptScreen::updateTotal);
    connect(m_withhold, &QCheckBox::clicked, this, &ReceiptScreen::grossChanged);
    connect(m_levy, &QCheckBox::clicked, this, &ReceiptScreen::grossChanged);

    reset();
    finishLayout({ field(Number), field(Date), field(Code), field(Title), field(Address1), field(Address2),
        field(TaxOffice), field(TaxNumber), field(Description), field(Gross), field(Net), field(Kdv) });
}

void ReceiptScreen::reset()
{
    m_calculating = true;
    resetFields(parameters().serino);
    field(Description)->setText(GenelTxtGet(QStringLiteral("lastack")));
    m_total = Currency();
    m_totalLabel->clear();
    m_calculating = false;
}

void ReceiptScreen::grossChanged()
{
    if (m_calculating)
        return;
    const ReceiptAmounts a = FromGross(field(Gross)->amount(), rates(), m_withhold->isChecked(), m_levy->isChecked());
    showAmounts(a.gross, a.stopaj, a.fon, a.net, a.kdv, false);
}

void ReceiptScreen::netChanged()
{
    if (m_calculating)
        return;
    const ReceiptAmounts a = FromNet(field(Net)->amount(), rates(), m_withhold->isChecked(), m_levy->isChecked());
    showAmounts(a.gross, a.stopaj, a.fon, a.net, a.kdv, true);
}

void ReceiptScreen::showAmounts(Currency gross, Currency stopaj, Currency fon, Currency net, Currency kdv, bool keepNet)
{
    m_calculating = true;
    if (keepNet)
        field(Gross)->setValue(QVariant::fromValue(gross));
    else
        field(Net)->setValue(QVariant::fromValue(net));
    field(Stopaj)->setValue(QVariant::fromValue(stopaj));
    field(Fon)->setValue(QVariant::fromValue(fon));
    field(Kdv)->setValue(QVariant::fromValue(kdv));
    m_calculating = false;
    updateTotal();
}

void ReceiptScreen::updateTotal()
{
    if (m_calculating)
        return;
    m_total = field(Net)->amount() + field(Kdv)->amount();
    m_totalLabel->setText(FormatAmount(m_total, 3));
}

void ReceiptScreen::accountFilled()
{
    field(Gross)->setValue(FieldRead(*dataFiles().carkart, QStringLiteral("ucret")));
    grossChanged();
}

void ReceiptScreen::save()
{
    if (m_total <= Currency())
        return;
    GenelTxtSet(QStringLiteral("lastack"), field(Description)->Text());
    parameters().serino = field(Number)->amount();
    GenelCurrenSet(QStringLiteral("serino"), parameters().serino);
    post();
    print();
    reset();
    focusCodeField();
}

void ReceiptScreen::post()
{
    postToAccount(2, 0, m_total);

    Recordset &defter = *dataFiles().defter;
    RsAddNew(defter);
    FieldWrite(defter, QStringLiteral("sira"), 0);
    FieldWrite(defter, QStringLiteral("tarih"), receiptDate());
    FieldWrite(defter, QStringLiteral("islem"), 0);
    FieldWrite(defter, QStringLiteral("evrak"), field(Number)->Text());
    FieldWrite(defter, QStringLiteral("cari"), field(Code)->Text());
    FieldWrite(defter, QStringLiteral("ack"), field(Title)->Text());
    FieldWrite(defter, QStringLiteral("brut"), QVariant::fromValue(field(Gross)->amount()));
    FieldWrite(defter, QStringLiteral("stopaj"), QVariant::fromValue(field(Stopaj)->amount()));
    FieldWrite(defter, QStringLiteral("fon"), QVariant::fromValue(field(Fon)->amount()));
    FieldWrite(defter, QStringLiteral("kdv"), QVariant::fromValue(field(Kdv)->amount()));
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
    values.number = field(Number)->Text();
    values.date = field(Date)->Text();
    values.title = field(Title)->Text();
    values.address1 = field(Address1)->Text();
    values.address2 = field(Address2)->Text();
    values.taxOffice = field(TaxOffice)->Text();
    values.taxNumber = field(TaxNumber)->Text();
    values.description = field(Description)->Text();
    values.gross = field(Gross)->amount();
    values.stopaj = field(Stopaj)->amount();
    values.fon = field(Fon)->amount();
    values.net = field(Net)->amount();
    values.kdv = field(Kdv)->amount();
    values.total = m_total;
    const ParameterSet &set = parameters();
    values.stopajRate = set.stopaj;
    values.fonRate = set.fon;
    values.kdvRate = set.kdv;
    PrintReceiptPage(ComposeReceiptPage(values, ReadLayout()));
}
