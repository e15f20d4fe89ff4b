#include "controls/GridFill.h"

#include "books/AccessLayer.h"
#include "controls/DcList.h"
#include "controls/DcListModel.h"
#include "money/Currency.h"
#include "money/DayNumber.h"

#include <QAbstractItemModel>
#include <QDate>
#include <QTableView>

#include <vector>

QString GridCellText(const QVariant &value)
{
    // Lists turn thousands of cells into text: the usual kinds are read in place.
    switch (value.typeId()) {
    case QMetaType::QString:
        return *static_cast<const QString *>(value.constData());
    case QMetaType::Int:
        return QString::number(*static_cast<const int *>(value.constData()));
    case QMetaType::QDate:
        return FormatDate(*static_cast<const QDate *>(value.constData()));
    default:
        if (value.userType() == qMetaTypeId<Currency>())
            return static_cast<const Currency *>(value.constData())->toString();
        return value.toString();
    }
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
    // The rows go to the grid at once: the view is told of them once, not row by row. One row
    // past the room makes the list say that it was cut.
    const int width = list.view()->model()->columnCount();
    const int room = DcListModel::MaxRows - list.ListCount();
    std::vector<QStringList> rows;
    for (; !RsEof(records) && int(rows.size()) <= room; RsNext(records)) {
        QStringList cells(width);
        for (const auto &[column, field] : columns)
            cells[column] = GridCellText(FieldRead(records, field));
        rows.push_back(std::move(cells));
    }
    return list.AddCaptionRows(std::move(rows));
}
