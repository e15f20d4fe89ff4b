#include "controls/LabelFor.h"

#include <QLabel>

QLabel *LabelFor(const QString &caption, QWidget *field, QWidget *parent)
{
    auto *label = new QLabel(caption, parent);
    label->setBuddy(field);
    QString name = caption;
    name.remove(u'&');
    field->setAccessibleName(name.trimmed());
    if (QWidget *inner = field->focusProxy())
        inner->setAccessibleName(name.trimmed());
    return label;
}
