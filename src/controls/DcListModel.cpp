#include "controls/DcListModel.h"

#include <QCollator>
#include <QDate>
#include <QLocale>

#include <algorithm>

DcListModel::DcListModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

int DcListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int DcListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant DcListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const int row = index.row();
    const int column = index.column();
    const QString value = row == m_overlayRow ? m_overlay.value(column) : cell(row, column);
    switch (role) {
    case Qt::DisplayRole:
        return m_columns[size_t(column)].display(value);
    case Qt::EditRole:
        return value;
    case Qt::TextAlignmentRole:
        return int(m_columns[size_t(column)].alignment());
    case Qt::ForegroundRole:
        return m_zebra && row % 2 == 1 ? m_zebraText : m_text;
    case Qt::BackgroundRole:
        return m_zebra && row % 2 == 1 ? m_zebraBack : m_back;
    default:
        return QVariant();
    }
}

QVariant DcListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && section >= 0 && section < columnCount()) {
        if (role == Qt::DisplayRole)
            return m_columns[size_t(section)].caption;
        if (role == Qt::TextAlignmentRole)
            return int(Qt::AlignCenter);
    }
    if (orientation == Qt::Vertical && role == Qt::DisplayRole)
        return section + 1;
    return QVariant();
}

void DcListModel::addColumn(const DcColumn &column)
{
    const int at = columnCount();
    beginInsertColumns(QModelIndex(), at, at);
    m_columns.push_back(column);
    for (QStringList &row : m_rows)
        row.append(QString());
    endInsertColumns();
}

void DcListModel::removeAllColumns()
{
    beginResetModel();
    m_columns.clear();
    for (QStringList &row : m_rows)
        row.clear();
    endResetModel();
}

int DcListModel::columnByName(const QString &name) const
{
    const QString upper = name.toUpper();
    for (size_t c = 0; c < m_columns.size(); ++c)
        if (m_columns[c].name == upper)
            return int(c);
    return -1;
}

int DcListModel::appendRows(std::vector<QStringList> rows)
{
    const int first = rowCount();
    const int count = int(qMin<size_t>(rows.size(), size_t(qMax(0, MaxRows - first))));
    if (count == 0)
        return 0;
    beginInsertRows(QModelIndex(), first, first + count - 1);
    for (int r = 0; r < count; ++r) {
        QStringList &cells = rows[size_t(r)];
        if (cells.size() < columnCount())
            cells.resize(columnCount());
        m_rows.push_back(std::move(cells));
    }
    endInsertRows();
    return count;
}

void DcListModel::insertEmptyRow(int row)
{
    if (rowCount() >= MaxRows || row < 0 || row > rowCount())
        return;
    beginInsertRows(QModelIndex(), row, row);
    QStringList empty;
    for (int c = 0; c < columnCount(); ++c)
        empty.append(QString());
    m_rows.insert(m_rows.begin() + row, empty);
    endInsertRows();
}

void DcListModel::removeRowAt(int row)
{
    if (row < 0 || row >= rowCount())
        return;
    beginRemoveRows(QModelIndex(), row, row);
    m_rows.erase(m_rows.begin() + row);
    endRemoveRows();
}

void DcListModel::clearRows()
{
    beginResetModel();
    m_rows.clear();
    m_overlayRow = -1;
    endResetModel();
}

QString DcListModel::cell(int row, int column) const
{
    if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount())
        return QString();
    return m_rows[size_t(row)].value(column);
}

void DcListModel::setCell(int row, int column, const QString &value)
{
    if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount())
        return;
    m_rows[size_t(row)][column] = value;
    emit dataChanged(index(row, column), index(row, column));
}

void DcListModel::setRow(int row, const QStringList &values)
{
    if (row < 0 || row >= rowCount())
        return;
    for (int c = 0; c < columnCount(); ++c)
        m_rows[size_t(row)][c] = values.value(c);
    emit dataChanged(index(row, 0), index(row, columnCount() - 1));
}

void DcListModel::setColumnFrom(int column, int fromRow, const QStringList &values)
{
    const int last = qMin(rowCount(), fromRow + int(values.size())) - 1;
    if (column < 0 || column >= columnCount() || fromRow < 0 || last < fromRow)
        return;
    for (int row = fromRow; row <= last; ++row)
        m_rows[size_t(row)][column] = values[row - fromRow];
    emit dataChanged(index(fromRow, column), index(last, column));
}

void DcListModel::sortRows(int column, bool ascending)
{
    if (column < 0 || column >= columnCount())
        return;
    const DcColumn &kind = m_columns[size_t(column)];
    const QString dates = QStringLiteral("dd.MM.yyyy");
    QCollator collator(QLocale(QLocale::Turkish, QLocale::Turkey));
    const auto less = [&](const QStringList &a, const QStringList &b) {
        const QString &x = a[column];
        const QString &y = b[column];
        if (kind.isNumber())
            return QLocale::c().toDouble(x) < QLocale::c().toDouble(y);
        if (kind.isDate())
            return QDate::fromString(x, dates) < QDate::fromString(y, dates);
        return collator.compare(x, y) < 0;
    };
    emit layoutAboutToBeChanged();
    if (ascending)
        std::stable_sort(m_rows.begin(), m_rows.end(), less);
    else
        std::stable_sort(
            m_rows.begin(), m_rows.end(), [&](const QStringList &a, const QStringList &b) { return less(b, a); });
    emit layoutChanged();
}

int DcListModel::findRow(int column, const QString &text, int from) const
{
    const QLocale turkish(QLocale::Turkish, QLocale::Turkey);
    const QString needle = turkish.toUpper(text.trimmed());
    for (int row = qMax(0, from); column >= 0 && column < columnCount() && row < rowCount(); ++row)
        if (turkish.toUpper(cell(row, column).trimmed()).contains(needle))
            return row;
    return -1;
}

void DcListModel::setOverlay(int row, const QStringList &values)
{
    m_overlayRow = row;
    m_overlay = values;
    if (row >= 0 && row < rowCount())
        emit dataChanged(index(row, 0), index(row, columnCount() - 1));
}

void DcListModel::clearOverlay()
{
    const int row = m_overlayRow;
    m_overlayRow = -1;
    if (row >= 0 && row < rowCount())
        emit dataChanged(index(row, 0), index(row, columnCount() - 1));
}

void DcListModel::allChanged()
{
    if (rowCount() > 0 && columnCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void DcListModel::setZebra(bool on)
{
    m_zebra = on;
    allChanged();
}

void DcListModel::setNormalColors(const QColor &text, const QColor &back)
{
    m_text = text;
    m_back = back;
    allChanged();
}

void DcListModel::setZebraColors(const QColor &text, const QColor &back)
{
    m_zebraText = text;
    m_zebraBack = back;
    allChanged();
}
