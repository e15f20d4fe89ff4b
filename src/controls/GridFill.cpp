#include "controls/GridFill.h"

#include "books/AccessLayer.h"
#include "controls/DcList.h"
#include "money/Currency.h"
#include "money/DayNumber.h"

#include <QAbstractItemModel>
#include <QDate>
#include <QTableView>

#include <vector>

QString GridCellText(const QVariant &value)
{
    if (value.typeId() == QMetaType::QDate)
        return FormatDate(value.toDate());
    if (value.userType() == qMetaTypeId<Currency>())
        return value.value<Currency>().toString();
    return value.toString();
}

int FillGrid(DcList &list, Recordset &records)
{
    std::vector<std::pair<int, QString>> columns; // grid column, query field
    QVariant probe;
    for (int c = 0; c < list.view()->model()->columnCount(); ++c) {
        const QString name = list.SectionName(c).toLower();
        if (!name.isEmpty() && records.read(name, &probe))
            columns.emplace_back(c, name);
    }
    int added = 0;
    for (; !RsEof(records); RsNext(records)) {
        const int row = list.CreateNewCaption();
        if (row < 0)
            break;
        for (const auto &[column, field] : columns)
            list.setCaption(row, column, GridCellText(FieldRead(records, field)));
        ++added;
    }
    return added;
}
