#include "accounts/BalancePanel.h"

#include "books/AccessLayer.h"
#include "books/DataFiles.h"
#include "books/TurkishText.h"
#include "controls/ValueLabel.h"
#include "money/FormatAmount.h"

#include <QGridLayout>
#include <QLabel>

BalancePanel::BalancePanel(QWidget *parent)
    : QWidget(parent)
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    const char16_t *columns[] = { u"Borç", u"Alacak", u"Bakiye" };
    const char16_t *rows[] = { u"Bakiye", u"Emanet", u"Toplam" };
    for (int c = 0; c < 3; ++c) {
        auto *heading = new QLabel(QString::fromUtf16(columns[c]), this);
        heading->setAlignment(Qt::AlignCenter);
        QFont bold = heading->font();
        bold.setBold(true);
        heading->setFont(bold);
        grid->addWidget(heading, 0, c + 1);
    }
    for (int r = 0; r < 3; ++r) {
        const QString rowName = QString::fromUtf16(rows[r]);
        auto *caption = new QLabel(rowName, this);
        QFont bold = caption->font();
        bold.setBold(true);
        caption->setFont(bold);
        grid->addWidget(caption, r + 1, 0);
        for (int c = 0; c < 3; ++c) {
            auto *amount = new ValueLabel(rowName + u' ' + QString::fromUtf16(columns[c]), this);
            amount->setObjectName(QStringLiteral("bakiye_%1_%2").arg(r).arg(c));
            amount->showAsAmount(120);
            amount->setTextInteractionFlags(Qt::TextSelectableByMouse);
            grid->addWidget(amount, r + 1, c + 1);
            m_amounts[r][c] = amount;
        }
    }
}

bool BalancePanel::sums(const QString &code, bool receipts, Currency *debit, Currency *credit) const
{
    const QString sql
        = QStringLiteral("SELECT amountsum(tutar * (ba = 0)) AS bsmm, amountsum(tutar * (ba = 1)) AS asmm "
                         "FROM carhar WHERE %1 AND islem %2 2")
              .arg(AnySpelling(QStringLiteral("kod"), QStringLiteral("?1")),
                  receipts ? QStringLiteral("=") : QStringLiteral("<>"));
    std::unique_ptr<Recordset> result;
    if (!QueryOpen(*dataFiles().db, result, sql, { code }))
        return false;
    *debit = AmountSumRead(*result, QStringLiteral("bsmm")).magnitude();
    *credit = AmountSumRead(*result, QStringLiteral("asmm")).magnitude();
    return true;
}

void BalancePanel::showAccount(const QString &code)
{
    sums(code, false, &m_otherDebit, &m_otherCredit);
    sums(code, true, &m_receiptDebit, &m_receiptCredit);
    showSums(m_otherDebit, m_otherCredit, m_receiptDebit, m_receiptCredit);
}

void BalancePanel::showSums(Currency otherDebit, Currency otherCredit, Currency depositDebit, Currency depositCredit)
{
    const Currency amounts[3][3] = {
        { otherDebit, otherCredit, otherDebit - otherCredit },
        { depositDebit, depositCredit, depositDebit - depositCredit },
        { otherDebit + depositDebit, otherCredit + depositCredit,
            (otherDebit + depositDebit) - (otherCredit + depositCredit) },
    };
    for (int r = 0; r < 3; ++r)
        for (int c = 0; c < 3; ++c)
            m_amounts[r][c]->setValue(FormatAmount(amounts[r][c]));
}

void BalancePanel::clear()
{
    for (auto &row : m_amounts)
        for (ValueLabel *amount : row)
            amount->setValue(QString());
}

QString BalancePanel::amountText(int row, int column) const
{
    return m_amounts[row][column]->text();
}
