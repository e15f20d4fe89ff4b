#pragma once

#include <QStyledItemDelegate>

class DcListModel;

// Paints a grid's cells. A figure (a number, or a right-aligned text such as a balance with its
// side) is never shown cut: one that does not fit its column asks for a wider column, which the
// grid then takes, and is painted whole from then on.
class FigureDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    FigureDelegate(const DcListModel *model, QObject *parent);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

signals:
    // The column needs at least this many pixels to show a figure whole.
    void columnTooNarrow(int column, int width) const;

private:
    const DcListModel *m_model;
};
