#include "app/ProgramScreens.h"

#include "accounts/AccountCardsScreen.h"
#include "accounts/AccountStatementScreen.h"
#include "accounts/AccountTransactionsScreen.h"
#include "accounts/CashBookScreen.h"
#include "accounts/DebitCreditScreen.h"
#include "app/MainWindow.h"
#include "app/SettingsScreen.h"
#include "ledger/LedgerScreen.h"
#include "ledger/MonthlyReportScreen.h"
#include "ledger/OfficialLedgerScreen.h"
#include "ledger/WithholdingListScreen.h"
#include "receipts/DepositScreen.h"
#include "receipts/EsmmImportScreen.h"
#include "receipts/LayoutDesignerScreen.h"
#include "receipts/ReceiptScreen.h"

void AddProgramScreens(MainWindow &window)
{
    window.addScreen(QStringLiteral("mnucarkart"), [] { return new AccountCardsScreen; });
    window.addScreen(QStringLiteral("mnucarhar"), [] { return new AccountTransactionsScreen; });
    window.addScreen(QStringLiteral("mnucareks"), [] { return new AccountStatementScreen; });
    window.addScreen(QStringLiteral("mnugbor"), [] { return new DebitCreditScreen; });
    window.addScreen(QStringLiteral("mnukasa"), [] { return new CashBookScreen; });
    window.addScreen(QStringLiteral("mnumkb"), [] { return new ReceiptScreen; });
    window.addScreen(QStringLiteral("mnuemanet"), [] { return new DepositScreen; });
    window.addScreen(QStringLiteral("mnuesmm"), [] { return new EsmmImportScreen; });
    window.addScreen(QStringLiteral("mnudiz"), [] { return new LayoutDesignerScreen; });
    window.addScreen(QStringLiteral("mnusdef"), [] { return new LedgerScreen; });
    window.addScreen(QStringLiteral("mnukdv"), [] { return new MonthlyReportScreen; });
    window.addScreen(QStringLiteral("mnuresmi"), [] { return new OfficialLedgerScreen; });
    window.addScreen(QStringLiteral("mnustoplst"), [] { return new WithholdingListScreen; });
    window.addScreen(QStringLiteral("mnuayarlar"), [] { return new SettingsScreen; });
}
