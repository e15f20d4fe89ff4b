#pragma once

#include "controls/PostingGridScreen.h"

class QRadioButton;
class ValueLabel;

// "Serbest Meslek Defteri" (Form8): the income ("Gelir") or expense ("Gider") book of the
// current calendar year in an editable grid. Withholding, fund and VAT of an income row follow
// from its gross; every finished row is stored at once.
class LedgerScreen : public PostingGridScreen
{
    Q_OBJECT
public:
    enum Book { Gelir = 0, Gider = 1 };
    enum Column { Tarih = 0, Evrak, Ack, Brut, Stopaj, Fon, Kdv }; // Gider: Kdv is column 4

    explicit LedgerScreen(QWidget *parent = nullptr);

    // Shows a side of the book; its rows load once the opening pause is over.
    void showBook(int book);
    int book() const { return m_book; }

protected:
    void storeRow(int row) override;
    Currency rowAmount(int row) const override;
    void recompute(int fromRow) override;

private:
    void defineColumns();
    void load();
    int kdvColumn() const { return m_book == Gelir ? Kdv : Stopaj; }
    void grossChecked(int column, const QString &name, const QString &value);
    void showRowNet(int row);
    void listKey(int key, int modifiers, int row);

    QRadioButton *m_sides[2];
    ValueLabel *m_labels[5]; // the row's net, then the totals of brut, stopaj, fon, kdv
    int m_book = Gelir;
    bool m_waiting = true; // the rows load after a short pause when the screen opens
};
