#include "testsupport/QueryTexts.h"

#include "books/AccessLayer.h"
#include "books/DataFiles.h"

#include <sqlite3.h>

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

QStringList StoredRows(const QString &select, QChar separator)
{
    QStringList rows;
    sqlite3_stmt *statement = nullptr;
    const QByteArray sql = (QStringLiteral("SELECT ") + select).toUtf8();
    if (sqlite3_prepare_v2(dataFiles().db->handle(), sql.constData(), -1, &statement, nullptr) != SQLITE_OK)
        return { QStringLiteral("cannot read: ") + select };
    while (sqlite3_step(statement) == SQLITE_ROW) {
        QStringList cells;
        for (int c = 0; c < sqlite3_column_count(statement); ++c)
            cells << QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(statement, c)));
        rows << cells.join(separator);
    }
    sqlite3_finalize(statement);
    return rows;
}
