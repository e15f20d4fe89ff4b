#pragma once

#include <QByteArray>
#include <QString>

// Whether a right-aligned text (a number) is wider than its field of en columns: it is then
// printed as en marks "#", since its last digits alone would read as another number.
bool OverflowsField(const QString &text, int en, int algn);
// Fits a field's text to en characters for a dot-matrix line: 0 left, 1 right (marks when it
// overflows), 2 centred (en below 1: the text as it is).
QString FitField(const QString &text, int en, int algn);
// The bytes a dot-matrix printer gets for a piece of a line: the ESC/P pairs for bold, italic
// and underline around it, Turkish letters in code page 857, the rest in Windows-1254.
QByteArray RawField(const QString &text, bool bold, bool italic, bool underline);
