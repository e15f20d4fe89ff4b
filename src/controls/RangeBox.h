#pragma once

class QGroupBox;
class QString;
class QWidget;

// A framed range of two fields, "Başlangıç" and "Bitiş", under the range's title (which the
// fields carry as their accessible description).
QGroupBox *RangeBox(const QString &title, QWidget *first, QWidget *last, QWidget *parent);
