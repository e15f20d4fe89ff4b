#include "accounts/TransactionTypeLabel.h"

#include <QStringList>

QString TransactionTypeLabel(int islem)
{
    static const QStringList labels = { QStringLiteral("0-Devir"), QStringLiteral("1-Nakit"), QStringLiteral("2-SMM"),
        QStringLiteral("3-Emanet"), QStringLiteral("4-Çek"), QStringLiteral("5-Senet"), QStringLiteral("6-Maaş"),
        QStringLiteral("7-Masraf"), QStringLiteral("8-Mutabakat"), QStringLiteral("9-Diğer") };
    return labels.value(islem);
}
