#include "controls/ValueLabel.h"

#include <QAccessibleWidget>

namespace {

// A value label reads as what it shows, empty when it shows nothing: Qt would otherwise name an
// empty label after its group box ("Kasa").
class ValueLabelAccessible : public QAccessibleWidget
{
public:
    explicit ValueLabelAccessible(ValueLabel *label)
        : QAccessibleWidget(label, QAccessible::StaticText)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        const auto *label = static_cast<const ValueLabel *>(widget());
        if (kind == QAccessible::Name)
            return label->value();
        if (kind == QAccessible::Description)
            return label->accessibleDescription();
        return QAccessibleWidget::text(kind);
    }
};

QAccessibleInterface *accessibleValueLabel(const QString &className, QObject *object)
{
    if (className == u"ValueLabel" && object && object->isWidgetType())
        return new ValueLabelAccessible(static_cast<ValueLabel *>(object));
    return nullptr;
}

} // namespace

ValueLabel::ValueLabel(const QString &meaning, QWidget *parent)
    : QLabel(parent)
{
    static const bool accessible = (QAccessible::installFactory(accessibleValueLabel), true);
    Q_UNUSED(accessible)
    setAccessibleDescription(meaning);
    setAccessibleName(QString());
}

void ValueLabel::showAsAmount(int leastWidth)
{
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setFrameShape(QFrame::StyledPanel);
    setLeastWidth(leastWidth);
}

void ValueLabel::setLeastWidth(int width)
{
    m_leastWidth = width;
    updateGeometry();
}

// Never narrower than the value it shows (a minimum width set on the label would let the layout
// squeeze the value below its own width).
QSize ValueLabel::minimumSizeHint() const
{
    QSize least = QLabel::minimumSizeHint();
    least.setWidth(qMax(least.width(), m_leastWidth));
    return least;
}

void ValueLabel::setValue(const QString &text)
{
    setText(text);
    setAccessibleName(text);
}
