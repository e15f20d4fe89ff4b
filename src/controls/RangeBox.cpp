#include "controls/RangeBox.h"

#include "controls/LabelFor.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

QGroupBox *RangeBox(const QString &title, QWidget *first, QWidget *last, QWidget *parent)
{
    auto *box = new QGroupBox(title, parent);
    auto *grid = new QGridLayout(box);
    grid->addWidget(LabelFor(QStringLiteral("Başlangıç"), first, box), 0, 0);
    grid->addWidget(first, 0, 1);
    grid->addWidget(LabelFor(QStringLiteral("Bitiş"), last, box), 1, 0);
    grid->addWidget(last, 1, 1);
    first->setAccessibleDescription(title);
    last->setAccessibleDescription(title);
    return box;
}
