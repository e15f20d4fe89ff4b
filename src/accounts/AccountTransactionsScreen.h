#pragma once

#include "controls/PostingGridScreen.h"

#include <vector>

class BalancePanel;
class QFrame;
class ValueLabel;
class XText;

// "Cari Hareketler" (Form4): the transactions of one account in an editable grid, by date,
// type, debit before credit and entry order, with the debit-positive running balance and the
// account's balance panel. Rows are stored and deleted as they are edited.
class AccountTransactionsScreen : public PostingGridScreen
{
    Q_OBJECT
public:
    enum Column { Tarih = 0, Evrak, Ack, Islem, Ba, Tutar, Bakiye, Oto };

    explicit AccountTransactionsScreen(QWidget *parent = nullptr);
    ~AccountTransactionsScreen() override;

    // Lists the account in the code field; an unknown code empties the grid and the panel.
    void selectAccount();

protected:
    void storeRow(int row) override;
    Currency rowAmount(int row) const override;
    void recompute(int fromRow) override;

private:
    void defineColumns();
    QFrame *makeTypePanel();
    void listTransactions(const QString &code);
    void columnReached(int column);
    void checkValue(int column, const QString &name, const QString &value);
    void listKey(int key, int modifiers, int row);
    void codeKey(int &key, Qt::KeyboardModifiers &modifiers);

    XText *m_code;
    ValueLabel *m_title;
    ValueLabel *m_type;
    QFrame *m_typePanel;
    BalancePanel *m_balance;
    // The four sums after each row: debit and credit of other and of deposit rows.
    struct Sums
    {
        Currency debitOther, creditOther, debitDeposit, creditDeposit;
        Currency balance() const { return (debitOther + debitDeposit) - (creditOther + creditDeposit); }
    };
    std::vector<Sums> m_running;
    bool m_listing = false;
    QString m_listedCode; // the account the list shows: rows are stored under it
};
