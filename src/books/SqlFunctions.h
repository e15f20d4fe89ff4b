#pragma once

struct sqlite3;

// Gives a connection what the program's SQL relies on: the collation TR (Turkish order, case
// folded the Turkish way), year(day number), month(day number), startsWith(text, prefix) in
// the same Turkish sense with no wildcards, spellings(text), its case spellings (see
// TurkishText.h), and turkishkey(text), a key whose byte order is the collation's. The file itself declares none of them, so that other tools can read it.
// Returns false when the engine refuses any of them.
bool registerSqlFunctions(sqlite3 *db);
