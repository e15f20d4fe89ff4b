#include "controls/ValueLabel.h"

ValueLabel::ValueLabel(const QString &meaning, QWidget *parent)
    : QLabel(parent)
{
    setAccessibleDescription(meaning);
    setAccessibleName(QString());
}

void ValueLabel::setValue(const QString &text)
{
    setText(text);
    setAccessibleName(text);
}
