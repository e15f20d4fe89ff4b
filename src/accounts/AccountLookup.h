#pragma once

#include <QDialog>

class DcList;
class XText;

// "Hesap Rehberi" (Form5): finds an account card by the beginning of its code or title and
// hands the chosen code back through the shared selected account code.
class AccountLookup : public QDialog
{
    Q_OBJECT
public:
    explicit AccountLookup(QWidget *parent = nullptr);
    ~AccountLookup() override;

    void search();
    // "Tamam" / Enter in the list: the current row's code becomes the selected code.
    void choose();
    // "Vazgeç" / Esc in the list: nothing is selected.
    void cancel();

private:
    XText *m_code;
    XText *m_title;
    DcList *m_list;
    QString m_currentKod;
};

// The code the account lookup chose; the caller reads it after the lookup closes, uses it only
// when it is not empty, and empties it.
QString SelectedAccountCode();
void SetSelectedAccountCode(const QString &code);

// Shows the account lookup over parent and answers the chosen code ("" when none); the shared
// selected code is empty again afterwards.
QString ChooseAccount(QWidget *parent);

// Gives an account-code field its lookup button (click or F2): the lookup opens over the
// field's screen and a chosen code lands in the field.
void AttachAccountLookup(XText *field);
