#pragma once

#include "controls/Screen.h"
#include "ledger/OfficialLedgerList.h"

#include <QPointer>

class QCheckBox;
class QComboBox;
class XText;

// "Serbest Meslek Defteri" (Form12): which side of the official book to list or print, a range
// of running numbers and of dates, and whether the list shows withholding and fund. The rows
// are numbered from the year's first row, so a listing that starts later continues the count
// and carries in the sums of the rows before it.
class OfficialLedgerScreen : public Screen
{
    Q_OBJECT
public:
    explicit OfficialLedgerScreen(QWidget *parent = nullptr);

    void listOnScreen();
    void print();
    // The list that the fills show (null until the first and once it was closed).
    OfficialLedgerList *listScreen() const { return m_listScreen; }

private:
    XText *makeField(int index, int format, double maximum);
    // Lists the chosen side's rows of the current year; a print kind above 0 then prints them.
    void fill(int kind);
    qint64 dayIn(int field) const;

    QComboBox *m_side;
    XText *m_fields[4] = {};
    QCheckBox *m_withholding;
    QCheckBox *m_fund;
    QPointer<OfficialLedgerList> m_listScreen;
};
