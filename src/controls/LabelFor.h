#pragma once

class QLabel;
class QString;
class QWidget;

// A label for a field; its text (without the accelerator mark) becomes the field's accessible
// name, and that of the widget inside that takes the field's focus.
QLabel *LabelFor(const QString &caption, QWidget *field, QWidget *parent);
