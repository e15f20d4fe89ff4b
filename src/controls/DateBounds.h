#pragma once

#include <QString>
#include <QVariantList>

class XText;

// " AND column >= ?n" and " AND column <= ?n" for those of the two date fields that hold a date
// (an empty field or one that is not a date sets no bound); their day numbers are appended to
// values, whose size numbers the placeholders.
QString DateBounds(const QString &column, const XText *first, const XText *last, QVariantList &values);
