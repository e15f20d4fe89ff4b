#pragma once

#include "controls/Screen.h"
#include "money/Currency.h"
#include "printing/ReportColumn.h"

#include <vector>

class DcList;
class ValueLabel;
class XText;

// "Stopaj Listesi" (Form15): every income row with withholding in a date range, by payer and
// date, with the payer's name, tax number and tax office for the withholding return. The list
// loads when it receives the focus, and only when the dates changed since the last load.
class WithholdingListScreen : public Screen
{
    Q_OBJECT
public:
    explicit WithholdingListScreen(QWidget *parent = nullptr);

    void print();
    void exportSheet();

private:
    static const ReportColumns &columns();
    XText *makeDateField(int index);
    void listEntered();
    void load(const QString &sql, const QVariantList &values);
    void pageTop(class Prnx &prnx) const;

    XText *m_dates[2] = {};
    DcList *m_list;
    ValueLabel *m_totalGross;
    ValueLabel *m_totalTax;
    QString m_lastQuery;
    std::vector<QVariantList> m_rows; // the rows found, as typed cells
};
