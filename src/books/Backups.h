#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

class Database;

// Copies of the books in the folder "yedek" beside them, each named by the moment it was made
// ("xsmm-2026-11-23-174455.dat"), taken through the engine's online backup so that a copy is
// always a consistent database. Made at every start of the window and before the first change
// of each day.
namespace Backups {

QString folder();
// Copies the open file now; false when the copy could not be made (the books are unchanged).
bool make(Database &db);
// Before a change of the books: the first change of a day is preceded by a copy.
void beforeChange();
// The newest copy's path, or "" when there is none.
QString newest();
// Of the copies' file names, those to remove: all but the ten newest, the newest of each of the
// last ten days that have one (however many copies a day has) and the newest of each of the
// twelve months up to `today`. A name that does not read as a copy's is never removed.
QStringList surplus(const QStringList &names, QDate today);

} // namespace Backups
