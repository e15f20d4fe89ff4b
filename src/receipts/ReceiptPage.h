#pragma once

#include "money/Currency.h"

#include <QString>
#include <QStringList>

#include <vector>

// What a receipt prints: the screen's texts and amounts and the rates.
struct ReceiptValues
{
    QString number; // field 0
    QString date; // field 1, "dd.MM.yyyy"
    QString title; // field 3
    QString address1, address2;
    QString taxOffice, taxNumber;
    QString description; // field 8
    Currency gross, stopaj, fon, net, kdv, total;
    float stopajRate = 0, fonRate = 0, kdvRate = 0;
    Currency withheld; // the VAT the payer withholds
    int withheldTenths = 0; // its share of the VAT in tenths, 0: none
};

// One row of the receipt layout (table duzen): item `no` at line `ust`, column `sol`, `uzun`
// characters wide; `txt` is the free text of items 13 and 19.
struct LayoutRow
{
    int no = 0;
    float uzun = 0;
    float sol = 0;
    float ust = 0;
    QString txt;
};

// The names of the items, by item number, as the layout designer shows them: the twenty of the
// paper receipt, then the withheld VAT and its share ("5/10").
const QStringList &ReceiptItemNames();
// "Serbest Açıklama": the row's own text as stored.
constexpr int FreeTextItem = 19;

constexpr int ReceiptLines = 33;
constexpr int ReceiptColumns = 80;

// The 33 lines of 80 characters of a receipt on the layout; later rows overwrite earlier ones.
QStringList ComposeReceiptPage(const ReceiptValues &values, const std::vector<LayoutRow> &layout);
// The layout rows of the data file, in the order they were added.
std::vector<LayoutRow> ReadLayout();
// Sends a page to the dot-matrix printer through the print engine; nothing when it cannot open.
void PrintReceiptPage(const QStringList &lines);
