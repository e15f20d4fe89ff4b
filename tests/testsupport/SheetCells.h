#pragma once

#include <QString>
#include <QStringList>

// The cells of a written .xlsx sheet, as "reference=text" for texts and "reference=#number"
// for numbers and dates ("B1=#46342").
QStringList SheetCells(const QString &path);
