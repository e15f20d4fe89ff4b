#pragma once

#include "controls/Screen.h"
#include "money/Currency.h"

#include <QDate>

#include <vector>

class QGridLayout;
class XText;

// What the two receipt screens share: the receipt number, the date, the account code with its
// lookup and fill-in, the client's name, address and tax data and a description, then the
// screen's own fields; F5 saves, F8 prints, Esc closes.
class ReceiptFormScreen : public Screen
{
    Q_OBJECT
public:
    ReceiptFormScreen(const QString &formName, const QString &caption, int descriptionLength, QWidget *parent);
    ~ReceiptFormScreen() override;

    virtual void save() = 0;
    virtual void print() = 0;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    enum Field { Number = 0, Date, Code, Title, Address1, Address2, TaxOffice, TaxNumber, Description, FirstOwn };

    // Appends a number field of the screen's own after the shared ones.
    XText *addAmountField(const QString &label, int grup);
    // Appends a whole-number field of the screen's own, up to `limit`.
    XText *addNumberField(const QString &label, double limit);
    // Puts the buttons under the fields and the fields into the focus chain; call last.
    void finishLayout(const std::vector<XText *> &focusOrder);
    XText *field(int index) const { return m_fields[size_t(index)]; }
    QGridLayout *grid() const { return m_grid; }
    // A new receipt: the next number after `last`, today, every other field empty and zero.
    void resetFields(Currency last);
    // The card's name, address and tax data are in fields 3 to 7; the card cursor stands on it.
    virtual void accountFilled() { }
    // The focus to the code field once the window has it back (after a dialog).
    void focusCodeField();
    // The receipt's date.
    QDate receiptDate() const;
    // Whether the receipt has a date and an account to be posted under; says what is missing.
    bool postable() const;
    // The receipt's row in the account's transactions: code, date, number and description from
    // the fields; a failure is shown, not returned.
    // Answers the row's oto (0 when it was not stored).
    qint64 postToAccount(int islem, int ba, Currency amount);

private:
    XText *addField(const QString &label, int format, double limit);
    void fillFromAccount();

    std::vector<XText *> m_fields;
    QGridLayout *m_grid;
};
