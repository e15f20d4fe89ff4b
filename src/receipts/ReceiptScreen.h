#pragma once

#include "receipts/ReceiptFormScreen.h"

class QCheckBox;
class QLabel;
class ValueLabel;

// "Serbest Meslek Makbuzu": one self-employment receipt at a time. Computes withholding, fund
// levy, net, VAT and total as the fee is typed; F5 posts it to the account and the income
// ledger, remembers its number and description, prints it and starts the next one.
class ReceiptScreen : public ReceiptFormScreen
{
    Q_OBJECT
public:
    explicit ReceiptScreen(QWidget *parent = nullptr);

    void save() override;
    void print() override;
    Currency total() const { return m_total; }

protected:
    void accountFilled() override;

private:
    // Tenths: the share of the VAT the payer withholds, in tenths (0 or empty: none); Withheld:
    // that VAT, computed from it and overwritable.
    enum Own { Gross = FirstOwn, Stopaj, Fon, Net, Kdv, Tenths, Withheld };

    void reset();
    void grossChanged();
    void netChanged();
    void showAmounts(Currency gross, Currency stopaj, Currency fon, Currency net, Currency kdv, bool keepNet);
    void vatChanged();
    void updateTotal();
    void post();

    QCheckBox *m_withhold;
    QCheckBox *m_levy;
    ValueLabel *m_totalLabel;
    Currency m_total;
    bool m_calculating = false;
};
