#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class DcListModel;

// Writes a grid list as a spreadsheet (.xlsx): the title texts on row 1 (the first in bold, the
// second as a date when it is one), the captions in bold on row 4, the rows from row 5 on with
// numbers as numbers and dates as dates. False when the file cannot be written.
bool WriteListSheet(const QString &path, const QStringList &titles, const DcListModel &list, double headerPointSize);

// Opens a written sheet in the desktop's spreadsheet application; false when none opens it.
using SheetOpener = std::function<bool(const QString &path)>;
bool OpenSheet(const QString &path);
// Replaces the desktop (tests); an empty function restores it.
void SetSheetOpener(SheetOpener opener);
