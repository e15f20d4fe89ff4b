#pragma once

#include <QString>
#include <QStringList>

// The data file compares text as plain bytes, so that any SQLite tool reads it; the program
// adds the Turkish sense where it sorts and compares: COLLATE TR in the SQL for order and
// ranges, and for equality on an indexed column every case spelling of the sought text, so
// that the index still answers.

// Upper case by the Turkish rules (i -> İ, ı -> I).
QString TurkishUpper(const QString &text);

// Every spelling of the text that differs only in case, the Turkish way ("ışık": "ışık",
// "Işık", … "IŞIK"). Meant for keys: a text of n letters has 2^n spellings. A text whose case
// forms differ in length from it (ß, SS) has only its own spelling.
QStringList CaseSpellings(const QString &text);

// "column IN (…)": the column holds `text` (an SQL expression: "?1", "s.kod") in any of its
// case spellings; read through the column's index.
QString AnySpelling(const QString &column, const QString &text);
// The code of the card (carkart) that a code belongs to in any case spelling, NULL when none, as
// an SQL expression. The code as it stands is sought first: the spellings (up to 2^8 for an
// eight-letter code) only for a code stored in another case than its card's.
QString CardCodeOf(const QString &code);
