#include "controls/FigureDelegate.h"

#include "controls/DcListModel.h"

#include <QApplication>

FigureDelegate::FigureDelegate(const DcListModel *model, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_model(model)
{
}

void FigureDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if (m_model->columns()[size_t(index.column())].isFigure()) {
        QStyleOptionViewItem item = option;
        initStyleOption(&item, index);
        const QStyle *style = item.widget ? item.widget->style() : QApplication::style();
        // The style draws the text inside its rectangle less a margin on each side.
        const int room = style->subElementRect(QStyle::SE_ItemViewItemText, &item, item.widget).width()
            - 2 * (style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, item.widget) + 1);
        const int missing = item.fontMetrics.horizontalAdvance(item.text) - room;
        if (missing > 0)
            emit columnTooNarrow(index.column(), option.rect.width() + missing);
    }
    QStyledItemDelegate::paint(painter, option, index);
}
