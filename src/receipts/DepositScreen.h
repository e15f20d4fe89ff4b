#pragma once

#include "receipts/ReceiptFormScreen.h"

class Prnx;

// "Emanet Alındı Makbuzu": money received in trust. F5 posts it to the account as a credit of
// kind 3 and advances the deposit number; F8 prints the fixed deposit form, graphic or raw.
class DepositScreen : public ReceiptFormScreen
{
    Q_OBJECT
public:
    explicit DepositScreen(QWidget *parent = nullptr);

    void save() override;
    void print() override;

private:
    enum Own { Amount = FirstOwn };

    void reset();
    void printForm(Prnx &prnx);
};
