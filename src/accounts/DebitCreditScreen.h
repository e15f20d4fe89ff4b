#pragma once

#include "accounts/AccountRangeScreen.h"
#include "controls/ListWindow.h"
#include "money/Currency.h"
#include "printing/ReportColumn.h"

#include <QPointer>

#include <vector>

// "Genel Borç Alacak Listesi" (Form10): for every account in the code range, the debit and
// credit of its transactions in the date range and the balance on its side, with the totals;
// listed in its own window (Form11) or printed.
class DebitCreditScreen : public AccountRangeScreen
{
    Q_OBJECT
public:
    explicit DebitCreditScreen(QWidget *parent = nullptr);

    void listOnScreen() override;
    void printOn(int kind) override;
    // The list window of the last listing (null before it and once it was closed).
    ListWindow *listWindow() const { return m_listWindow; }

private:
    struct Account
    {
        QString kod, unv;
        Currency debit, credit;
        bool listed = false;
        // A side that cannot be summed leaves both balances unknown (the overflow mark).
        bool summed() const { return debit.isValid() && credit.isValid(); }
        Currency debitBalance() const
        {
            return !summed() ? Currency::overflow() : debit > credit ? debit - credit : Currency();
        }
        Currency creditBalance() const
        {
            return !summed() ? Currency::overflow() : debit > credit ? Currency() : credit - debit;
        }
        // A row of the report's columns.
        QVariantList cells() const;
    };
    static const ReportColumns &columns();
    // Every account of the ranges that has a card, code by code; listed: admitted by its type.
    std::vector<Account> accounts() const;

    QPointer<ListWindow> m_listWindow;
};
