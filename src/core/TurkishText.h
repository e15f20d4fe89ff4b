#pragma once

#include <QString>

// The data file compares text as plain bytes, so that any SQLite tool reads it; the program
// adds the Turkish sense where it sorts and compares: COLLATE TR in the SQL for order and
// ranges, and for equality on an indexed column every case spelling of the sought text, so
// that the index still answers.

// Upper case by the Turkish rules (i -> İ, ı -> I).
QString TurkishUpper(const QString &text);

// "column IN (…)": the column holds the text bound to ?placeholder in any of its Turkish case
// spellings. Bind AnySpellingValue(text) to that placeholder.
QString AnySpelling(const QString &column, int placeholder);
// Every spelling of the text that differs only in case (the Turkish way), as the JSON array
// AnySpelling reads. Meant for keys: a text of n letters has up to 2^n spellings.
QString AnySpellingValue(const QString &text);
