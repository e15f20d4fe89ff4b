#pragma once

#include "controls/ListWindow.h"

// "Kdv, Stopaj Raporu" (Form9): for each month of the current calendar year the deductible base
// and VAT of the expenses, the computed base and VAT of the income, and the withholding and
// fund of the income, with the year's totals; beside the computed VAT, the part of it that the
// payers withheld (the professional declares the computed VAT and pays the difference). Read-only.
class MonthlyReportScreen : public ListWindow
{
    Q_OBJECT
public:
    enum Column { Donem = 0, IndMatrah, IndKdv, HesMatrah, HesKdv, TevkKdv, Stopaj, Fon };

    explicit MonthlyReportScreen(QWidget *parent = nullptr);

    void compute();
};
