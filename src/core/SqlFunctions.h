#pragma once

struct sqlite3;

// Gives a connection what the program's SQL relies on: the collation TR (Turkish order, case
// folded the Turkish way, as the data file's text is compared), year(day number), month(day number) and
// startsWith(text, prefix) in the same Turkish sense, with no wildcards.
// Returns false when the engine refuses any of them.
bool registerSqlFunctions(sqlite3 *db);
