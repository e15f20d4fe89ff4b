#include "controls/ReportGrid.h"

#include "controls/DcList.h"
#include "controls/GridFill.h"
#include "money/AmountConventions.h"

void DefineReportColumns(DcList &list, const ReportColumns &columns)
{
    const int onda = amountConventions().tlonda;
    for (const ReportColumn &column : columns) {
        if (!column.listed())
            continue;
        const QString caption = column.listCaption();
        switch (column.kind) {
        case CellKind::Text: {
            const QVariant added
                = list.Add(QStringLiteral("a"), column.name, caption, column.pixels, column.width, 0, 0, 0);
            if (column.align == 1)
                list.AlignRight(added.toInt());
            break;
        }
        case CellKind::Date:
            list.Add(QStringLiteral("t"), column.name, caption, column.pixels, 10, 0, 0, 0);
            break;
        case CellKind::Number:
            list.Add(QStringLiteral("n"), column.name, caption, column.pixels, 99999999, 0, 0, 0);
            break;
        case CellKind::Amount:
            list.Add(QStringLiteral("n"), column.name, caption, column.pixels, 999999999999.0, 0, onda, 3);
            break;
        }
    }
}

bool AddReportRows(DcList &list, const ReportColumns &columns, const std::vector<QVariantList> &rows)
{
    std::vector<int> listed;
    for (size_t c = 0; c < columns.size(); ++c)
        if (columns[c].listed())
            listed.push_back(int(c));
    std::vector<QStringList> shown;
    shown.reserve(rows.size());
    for (const QVariantList &cells : rows) {
        QStringList texts;
        texts.reserve(int(listed.size()));
        for (const int c : listed)
            texts << (c < cells.size() ? GridCellText(cells.at(c)) : QString());
        shown.push_back(std::move(texts));
    }
    return list.AddCaptionRows(std::move(shown)) == int(rows.size());
}
