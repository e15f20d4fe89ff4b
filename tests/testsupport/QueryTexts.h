#pragma once

#include <QStringList>
#include <QVariantList>

// One field of every row of a query on the open data file, as texts.
QStringList QueryTexts(const QString &sql, const QString &field, const QVariantList &values = {});
// Every row of a query on the open data file (select: what follows SELECT), its columns' texts
// joined by separator, NULL as "".
QStringList StoredRows(const QString &select, QChar separator = u'|');
