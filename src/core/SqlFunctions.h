#pragma once

struct sqlite3;

// Gives a connection what the program's SQL relies on: the collation TR (Turkish order, case
// folded the Turkish way, as the data file's text is compared) and year(day number).
// Returns false when the engine refuses either.
bool registerSqlFunctions(sqlite3 *db);
