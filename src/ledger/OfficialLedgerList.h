#pragma once

#include "controls/ListWindow.h"
#include "ledger/LedgerAmounts.h"
#include "money/Currency.h"

#include <QDate>

#include <vector>

// The official book of one side as a read-only list (Form13), "Serbest Meslek Defteri (Gelir)"
// or "(Gider)", and its printed pages: numbered rows, page totals carried from page to page.
class OfficialLedgerList : public ListWindow
{
    Q_OBJECT
public:
    enum Side { Gelir = 0, Gider = 1 };
    enum Column { Sira = 0, Tarih, Evrak, Ack, Matrah };

    explicit OfficialLedgerList(QWidget *parent = nullptr);

    // Empties the list for a side's book; withholding and fund: whether an income list shows
    // those columns; withheldVat: whether the book has VAT withheld by payers (its column is
    // then listed and printed).
    void showBook(int side, bool withholding, bool fund, bool withheldVat);
    // A numbered row found (number 0 and no date: the row that carries in the sums before the
    // range); listRows() shows the rows found.
    void addRow(int sira, QDate date, const QString &evrak, const QString &ack, const LedgerAmounts &amounts);
    void listRows();
    // Prints the rows found (all of them, also beyond a full list) with the print engine kind
    // (Prnx::Graphic or Prnx::Raw).
    void yazdir(int kind, int side);

private:
    // Number, date, document, text, base, withholding, fund, VAT, withheld VAT and the printed
    // total; the side decides the heads, the boxes which of withholding and fund are listed.
    static ReportColumns columns(int side, bool withholding, bool fund, bool withheldVat);
    void pageTop(class Prnx &prnx, bool income) const;

    int m_side = Gelir;
    bool m_withheldVat = false;
    std::vector<QVariantList> m_rows; // the rows found, as typed cells
};
