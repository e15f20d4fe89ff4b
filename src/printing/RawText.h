#pragma once

#include <QByteArray>
#include <QString>

// Fits a field's text to en characters for a dot-matrix line: 0 left, 1 right, 2 centred
// (en below 1: the text as it is). A right-aligned text (a number) wider than the field is
// en marks "#": its last digits alone would read as another number.
QString FitField(const QString &text, int en, int algn);
// The bytes a dot-matrix printer gets for a piece of a line: the ESC/P pairs for bold, italic
// and underline around it, Turkish letters in code page 857, the rest in Windows-1254.
QByteArray RawField(const QString &text, bool bold, bool italic, bool underline);
