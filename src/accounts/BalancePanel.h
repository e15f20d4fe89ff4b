#pragma once

#include "money/Currency.h"

#include <QWidget>

class ValueLabel;

// The nine amounts beside an account card: debit, credit and balance of the account's other
// transactions ("Bakiye"), of its receipt postings ("Emanet"), and of both ("Toplam").
class BalancePanel : public QWidget
{
    Q_OBJECT
public:
    explicit BalancePanel(QWidget *parent = nullptr);

    // Recomputes the amounts of an account; a query that fails keeps the earlier pair.
    void showAccount(const QString &code);
    // Shows the sums of the "Bakiye" row (other) and the "Emanet" row (deposits); the balances and
    // the "Toplam" row follow from them.
    void showSums(Currency otherDebit, Currency otherCredit, Currency depositDebit, Currency depositCredit);
    void clear();
    // The label of a row (0 Bakiye, 1 Emanet, 2 Toplam) and column (0 Borç, 1 Alacak, 2 Bakiye).
    QString amountText(int row, int column) const;

private:
    bool sums(const QString &code, bool receipts, Currency *debit, Currency *credit) const;

    ValueLabel *m_amounts[3][3] = {};
    Currency m_otherDebit, m_otherCredit, m_receiptDebit, m_receiptCredit; // the last sums read
};
