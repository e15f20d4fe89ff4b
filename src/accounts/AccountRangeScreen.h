#pragma once

#include "controls/Screen.h"

#include <QVariantList>

class QCheckBox;
class XText;

// The parameters of the account reports: a range of account codes (with the account lookup,
// filled on opening with the first and the last card's code), a range of dates, and the three
// account types to admit; " Yazdır (F8) " and " Ekrana Listele (F7) ".
class AccountRangeScreen : public Screen
{
    Q_OBJECT
public:
    enum Field { FirstCode = 0, LastCode, FirstDate, LastDate };

    AccountRangeScreen(const QString &formName, const QString &caption, QWidget *parent = nullptr);

    virtual void listOnScreen() = 0;
    // " Yazıcı Ayarları" for the report, then printOn with the kind chosen.
    void print();
    // Prints with the print engine kind the printer settings gave (Prnx::Graphic or Prnx::Raw).
    virtual void printOn(int kind) = 0;

protected:
    // Whether a report lists every account of the range, or only those with a card.
    enum class Listed { Every, CardsOnly };
    // The condition on carhar rows (as c) of the two ranges: an empty code is the empty text, a
    // field that holds no date sets no bound. Appends its values. A report of the carded accounts
    // whose code range holds every card reads its rows with no code bound at all: in code order
    // through the index, instead of code by code.
    QString rangeCondition(QVariantList &values, Listed listed = Listed::Every) const;
    // Whether an account of this card type is admitted (types outside 0-2 always are).
    bool admits(int tip) const;
    QString codeRangeText() const;
    QString dateRangeText() const;
    // The page head of the printed account reports, up to the column heads.
    void printRangeHead(class Prnx &prnx) const;

private:
    XText *makeField(int index, int format, bool autoSelect);
    static bool holdsEveryCard(const QString &first, const QString &last);
    void fillCodesFromCards();

    XText *m_fields[4] = {};
    QCheckBox *m_types[3] = {};
};
