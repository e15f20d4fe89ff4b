#pragma once

#include "controls/PostingGridScreen.h"

class QLabel;
class ValueLabel;
class XText;

// "Kasa Defteri" (Form7): the cash movements of one day (cash "1-Nakit" and deposit "3-Emanet"
// rows of the account transactions), seen from the cash box: money in on the "Borç" side, money
// out on "Alacak". Shows the day's totals, the balance carried from the days before and the
// cash position, the balance of the current line's account, and prints the day on one page.
class CashBookScreen : public PostingGridScreen
{
    Q_OBJECT
public:
    enum Column { Kod = 0, Em, Evrak, Ack, Borc, Alacak, Oto };

    explicit CashBookScreen(QWidget *parent = nullptr);
    ~CashBookScreen() override;

    // Lists a day: its cash rows, the carry-over of the days before and the cash position.
    void listDay(QDate day);
    // Prints the day the list shows; when the date field was visited since, the day typed there
    // is listed first (and a wrong one is refused with "Hatalı Tarih..").
    void printDay();

protected:
    void storeRow(int row) override;
    Currency rowAmount(int row) const override;
    void recompute(int fromRow) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void defineColumns();
    QWidget *makePositionBox();
    QWidget *makeAccountBox();
    void gridEntered();
    // Lists the day typed in the date field; false (after "Hatalı Tarih..") when it is none.
    bool listTypedDay();
    void readCarryOver(QDate day);
    void showPosition();
    void showAccount(const QString &code);
    void rowChanged(int row);
    void checkValue(int column, const QString &name, const QString &value);
    void listKey(int key, int modifiers, int row);
    void dateKey(int &key, Qt::KeyboardModifiers &modifiers);
    // The day typed in the date field.
    QDate day() const;
    void print();

    XText *m_date;
    ValueLabel *m_position[3][2] = {}; // "Günlük İşlemler", "Dünden Devir", "Kasa Durumu" × debit, credit
    ValueLabel *m_accountCode;
    ValueLabel *m_accountTitle;
    ValueLabel *m_accountBalance;
    Currency m_dayDebit, m_dayCredit, m_carryDebit, m_carryCredit;
    bool m_dateChecked = false;
    QDate m_listedDay; // the day the list shows: rows are stored and printed under it
};
