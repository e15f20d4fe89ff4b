#include "receipts/DepositScreen.h"

#include "books/Message.h"

#include "books/Parameters.h"
#include "controls/XText.h"
#include "money/FormatAmount.h"
#include "printing/PrintPreset.h"
#include "printing/Prnx.h"

namespace {

const QString depositTitle = QStringLiteral("EMANET ALINDI MAKBUZU");

} // namespace

DepositScreen::DepositScreen(QWidget *parent)
    : ReceiptFormScreen(QStringLiteral("Form6"), QStringLiteral("Emanet Alındı Makbuzu"), 40, parent)
{
    addAmountField(QStringLiteral("Tutar"), 0);
    reset();
    finishLayout({ field(Number), field(Date), field(Code), field(Title), field(Address1), field(Address2),
        field(TaxOffice), field(TaxNumber), field(Description), field(Amount) });
}

void DepositScreen::reset()
{
    resetFields(parameters().emanet);
}

void DepositScreen::save()
{
    if (field(Amount)->amount() <= Currency()) {
        Message::notice(QStringLiteral("Tutar Yazılmamış.."));
        return;
    }
    if (!postable())
        return;
    parameters().emanet = field(Number)->amount();
    GenelCurrenSet(QStringLiteral("emanet"), parameters().emanet);
    postToAccount(3, 1, field(Amount)->amount());
    reset();
    focusCodeField();
}

void DepositScreen::print()
{
    const int kind = ChoosePrinter({ depositTitle, true, true, false, true, 33, {} }, this);
    Prnx prnx;
    if (kind == 0 || !prnx.OpenPrinter(kind, depositTitle))
        return;
    printForm(prnx);
    prnx.ClosePrinter();
}

void DepositScreen::printForm(Prnx &prnx)
{
    prnx.YeniSayfa();
    prnx.Lprint(QStringLiteral(" "), 1, true);
    prnx.Lprint(QStringLiteral(" "), 1, true);
    prnx.Lprint(depositTitle, 80, true, 2, true);
    prnx.Lprint(QStringLiteral(" "), 1, true);
    const struct
    {
        const char16_t *label;
        QString value;
        int width;
    } heading[] = {
        { u"Tarih :", field(Date)->Text(), 15 },
        { u"Makbuz No :", field(Number)->Text(), 15 },
        { u"Müşteri No :", field(Code)->Text(), 15 },
        { u"Ünvan :", field(Title)->Text(), 50 },
        { u"Adres :", field(Address1)->Text(), 50 },
        { u"       ", field(Address2)->Text(), 50 },
        { u"Vergi No :", field(TaxOffice)->Text() + QStringLiteral(" - ") + field(TaxNumber)->Text(), 50 },
    };
    for (const auto &line : heading) {
        prnx.Lprint(QString::fromUtf16(line.label), 15, false, 1);
        prnx.Lprint(line.value, line.width, true);
    }
    prnx.Lprint(QStringLiteral(" "), 1, true);
    const auto rule = [&prnx] {
        prnx.Lprint(QString(), 4);
        prnx.LinePrint(40);
        prnx.Lprint(QString(), 1);
        prnx.LinePrint(15, false, true);
    };
    rule();
    prnx.Lprint(QString(), 4);
    prnx.Lprint(QStringLiteral("AÇIKLAMA"), 40, false, 0, true);
    prnx.Lprint(QString(), 1);
    prnx.Lprint(QStringLiteral("TUTAR"), 15, true, 0, true);
    rule();
    prnx.Lprint(QString(), 4);
    prnx.Lprint(field(Description)->Text(), 40);
    prnx.Lprint(QString(), 1);
    prnx.Lprint(FormatAmount(field(Amount)->amount(), 3), 15, true, 1);
    rule();
    prnx.Lprint(QStringLiteral("Yukarıda Tutarı Yazılı Bedel EMANETTEN Alınmıştır.."), 80, true);
    prnx.SayfaBitti(true);
}
