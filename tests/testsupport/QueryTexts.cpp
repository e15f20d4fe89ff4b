#include "testsupport/QueryTexts.h"

#include "books/AccessLayer.h"
#include "books/DataFiles.h"

QStringList QueryTexts(const QString &sql, const QString &field, const QVariantList &values)
{
    QStringList texts;
    std::unique_ptr<Recordset> rows;
    if (QueryOpen(*dataFiles().db, rows, sql, values)) {
        do
            texts << FieldRead(*rows, field).toString();
        while (RsNext(*rows));
    }
    return texts;
}
