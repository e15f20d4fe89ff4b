#pragma once

#include "controls/DcColumn.h"

#include <QAbstractTableModel>
#include <QColor>
#include <QStringList>

#include <vector>

// The cells of a grid list, kept as texts, with the columns that say how they are shown. The
// raw text is in Qt::EditRole, the shown text in Qt::DisplayRole.
class DcListModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    static constexpr int MaxRows = 32751;

    explicit DcListModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    const std::vector<DcColumn> &columns() const { return m_columns; }
    DcColumn &column(int c) { return m_columns[size_t(c)]; }
    void addColumn(const DcColumn &column);
    void removeAllColumns();
    int columnByName(const QString &name) const; // -1 when unknown

    // Rows at the end (cells one per column, the rest empty) with one notice to the views, as
    // many as the list still takes; answers how many that was.
    int appendRows(std::vector<QStringList> rows);
    void insertEmptyRow(int row);
    void removeRowAt(int row);
    void clearRows();
    QString cell(int row, int column) const;
    void setCell(int row, int column, const QString &value);
    void setRow(int row, const QStringList &values);
    // The cells of a column from a row down, one per value (as many as there are rows).
    void setColumnFrom(int column, int fromRow, const QStringList &values);
    // Sorts the rows by a column (numbers as numbers, dates as dates, texts in Turkish order);
    // rows with equal values keep their order.
    void sortRows(int column, bool ascending);
    // The first row from `from` on whose cell contains the text, both trimmed and upper-cased
    // the Turkish way; -1 when none does.
    int findRow(int column, const QString &text, int from) const;

    // Shows these values in a row instead of its cells while it is being edited.
    void setOverlay(int row, const QStringList &values);
    void clearOverlay();

    bool zebra() const { return m_zebra; }
    void setZebra(bool on);
    void setNormalColors(const QColor &text, const QColor &back);
    void setZebraColors(const QColor &text, const QColor &back);

private:
    void allChanged();

    std::vector<DcColumn> m_columns;
    std::vector<QStringList> m_rows;
    int m_overlayRow = -1;
    QStringList m_overlay;
    bool m_zebra = false;
    QColor m_text = Qt::black, m_back = QColor(255, 255, 225), m_zebraText = Qt::black, m_zebraBack = Qt::white;
};
