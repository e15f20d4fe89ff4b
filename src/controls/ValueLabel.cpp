#include "controls/ValueLabel.h"

ValueLabel::ValueLabel(const QString &meaning, QWidget *parent)
    : QLabel(parent)
{
    setAccessibleDescription(meaning);
    setAccessibleName(QString());
}

void ValueLabel::showAsAmount(int minimumWidth)
{
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setFrameShape(QFrame::StyledPanel);
    setMinimumWidth(minimumWidth);
}

void ValueLabel::setValue(const QString &text)
{
    setText(text);
    setAccessibleName(text);
}
