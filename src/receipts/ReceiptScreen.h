#pragma once

#include "core/Screen.h"
#include "money/Currency.h"

#include <array>

class QCheckBox;
class QLabel;
class XText;

// "Serbest Meslek Makbuzu": one self-employment receipt at a time. Computes withholding, fund
// levy, net, VAT and total as the fee is typed; F5 posts it to the account and the income
// ledger, remembers its number and description, prints it and starts the next one.
class ReceiptScreen : public Screen
{
    Q_OBJECT
public:
    explicit ReceiptScreen(QWidget *parent = nullptr);
    ~ReceiptScreen() override;

    void save();
    void print();
    Currency total() const { return m_total; }

private:
    void reset();
    void fieldKey(int &key, Qt::KeyboardModifiers &modifiers);
    void grossChanged();
    void netChanged();
    void showAmounts(Currency gross, Currency stopaj, Currency fon, Currency net, Currency kdv, bool keepNet);
    void updateTotal();
    void fillFromAccount();
    void post();

    std::array<XText *, 14> m_fields {};
    QCheckBox *m_withhold;
    QCheckBox *m_levy;
    QLabel *m_totalLabel;
    Currency m_total;
    bool m_calculating = false;
};
