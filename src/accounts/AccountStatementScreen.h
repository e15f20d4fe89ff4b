#pragma once

#include "accounts/AccountRangeScreen.h"
#include "controls/ListWindow.h"

#include <QPointer>

#include <functional>

// "Cari Hareket Dökümü" (Form16): the transactions of each account in the code range and the
// date range, by date and type, with a running balance and the account's totals; printed in
// the house style of the account reports or shown in a window of its own.
class AccountStatementScreen : public AccountRangeScreen
{
    Q_OBJECT
public:
    enum class Line { Heading, Transaction, Total };

    explicit AccountStatementScreen(QWidget *parent = nullptr);

    void listOnScreen() override;
    void printOn(int kind) override;
    ListWindow *listWindow() const { return m_listWindow; }

private:
    static const ReportColumns &columns();
    // The statement line by line: an account's heading, its transactions, its totals. Amounts
    // are Currency cells.
    void walk(const std::function<void(Line line, const QVariantList &cells)> &emitLine) const;

    QPointer<ListWindow> m_listWindow;
};
