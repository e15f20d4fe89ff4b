#include "receipts/ReceiptScreen.h"

#include "books/AccessLayer.h"
#include "books/DataFiles.h"
#include "books/Message.h"
#include "books/Parameters.h"
#include "books/Postings.h"
#include "controls/ShrinkEffect.h"
#include "controls/ValueLabel.h"
#include "controls/XText.h"
#include "money/FormatAmount.h"
#include "money/ReceiptCalculation.h"
#include "printing/PrintPreset.h"
#include "printing/Prnx.h"
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
    , m_totalLabel(new ValueLabel(QStringLiteral("TOPLAM"), this))
{
    addAmountField(QStringLiteral("Brüt Ücret"), 3);
    addAmountField(QStringLiteral("Stopaj"), 3);
    addAmountField(QStringLiteral("Fon"), 3);
    addAmountField(QStringLiteral("Net Ücret"), 3);
    addAmountField(QStringLiteral("K.D.V."), 3);
    addNumberField(QStringLiteral("Tevkifat"), 10);
    addAmountField(QStringLiteral("Tevkifat Tutarı"), 3);
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
    grid()->addWidget(new QLabel(QStringLiteral("/ 10"), this), Tenths, 2);
    grid()->addWidget(m_withhold, Stopaj, 3);
    grid()->addWidget(m_levy, Fon, 3);

    auto *totalCaption = new QLabel(QStringLiteral("TOPLAM"), this);
    QFont bold = totalCaption->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.3);
    totalCaption->setFont(bold);
    m_totalLabel->setFont(bold);
    m_totalLabel->setObjectName(QStringLiteral("toplam"));
    m_totalLabel->showAsAmount(150);
    grid()->addWidget(totalCaption, Withheld + 1, 0);
    grid()->addWidget(m_totalLabel, Withheld + 1, 1, Qt::AlignLeft);

    connect(field(Gross), &XText::Change, this, &ReceiptScreen::grossChanged);
    connect(field(Net), &XText::Change, this, &ReceiptScreen::netChanged);
    connect(field(Kdv), &XText::Change, this, &ReceiptScreen::vatChanged);
    connect(field(Tenths), &XText::Change, this, &ReceiptScreen::vatChanged);
    connect(field(Withheld), &XText::Change, this, &ReceiptScreen::updateTotal);
    connect(m_withhold, &QCheckBox::clicked, this, &ReceiptScreen::grossChanged);
    connect(m_levy, &QCheckBox::clicked, this, &ReceiptScreen::grossChanged);

    reset();
    finishLayout({ field(Number), field(Date), field(Code), field(Title), field(Address1), field(Address2),
        field(TaxOffice), field(TaxNumber), field(Description), field(Gross), field(Net), field(Kdv), field(Tenths),
        field(Withheld) });
}

void ReceiptScreen::reset()
{
    m_calculating = true;
    resetFields(parameters().serino);
    field(Tenths)->setOnda(0);
    field(Description)->setText(GenelTxtGet(QStringLiteral("lastack")));
    m_total = Currency();
    m_totalLabel->setValue(QString());
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
    vatChanged();
}

void ReceiptScreen::vatChanged()
{
    if (m_calculating)
        return;
    m_calculating = true;
    field(Withheld)->setValue(
        QVariant::fromValue(WithheldVat(field(Kdv)->amount(), field(Tenths)->Value().toInt() * 10)));
    m_calculating = false;
    updateTotal();
}

void ReceiptScreen::updateTotal()
{
    if (m_calculating)
        return;
    m_total = PayableTotal(field(Net)->amount(), field(Kdv)->amount(), field(Withheld)->amount());
    m_totalLabel->setValue(FormatAmount(m_total, 3));
}

void ReceiptScreen::accountFilled()
{
    field(Gross)->setValue(FieldRead(*dataFiles().carkart, QStringLiteral("ucret")));
    grossChanged();
}

void ReceiptScreen::save()
{
    if (!m_total.isValid()) {
        Message::exclamation(QStringLiteral("Tutar çok büyük; makbuz kaydedilmedi."));
        return;
    }
    if (m_total <= Currency() || !postable())
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
    const qint64 account = postToAccount(2, 0, m_total);

    LedgerPosting row;
    row.tarih = receiptDate();
    row.islem = 0;
    row.evrak = field(Number)->Text();
    row.cari = field(Code)->Text();
    row.ack = field(Title)->Text();
    row.brut = field(Gross)->amount();
    row.stopaj = field(Stopaj)->amount();
    row.fon = field(Fon)->amount();
    row.kdv = field(Kdv)->amount();
    const qint64 ledger = AddLedgerPosting(row);
    if (ledger <= 0) {
        Message::exclamation(QStringLiteral("Kayıt Defter Hareketlere Kaydedilemedi.."));
        return;
    }
    ShrinkEffect(true);
    ReceiptRecord record;
    record.tevkoran = field(Tenths)->Value().toInt() * 10;
    record.tevkifat = field(Withheld)->amount();
    if ((record.tevkoran != 0 || record.tevkifat != Currency()) && !AddReceiptRecord(ledger, account, record))
        Message::exclamation(QStringLiteral("Tevkifat Bilgisi Kaydedilemedi.."));
}

void ReceiptScreen::print()
{
    const int kind = ChoosePrinter({ QStringLiteral("S.M. Makbuzu"), false, false, false, false, 33, true }, this);
    if (kind == 0)
        return;
    if (kind != Prnx::Raw) {
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
    values.withheld = field(Withheld)->amount();
    values.withheldTenths = field(Tenths)->Value().toInt();
    values.total = m_total;
    const ParameterSet &set = parameters();
    values.stopajRate = set.stopaj;
    values.fonRate = set.fon;
    values.kdvRate = set.kdv;
    PrintReceiptPage(ComposeReceiptPage(values, ReadLayout()));
}
