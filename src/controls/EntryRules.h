#pragma once

#include <QChar>
#include <QString>

// The typing rules that the input field and the grid's cell editor share.

// The value of a number entry as typed ("", "." and "12." included).
double EntryValue(const QString &entry);
// The number a text starts with, exactly, in plain decimal notation without needless zeros:
// "0012.50" gives "12.5", "-.5x" gives "-0.5", "" and other texts give "0". No digit is lost.
QString ExactNumberText(const QString &text);
// Applies one typed character (not Backspace) to a number entry: a digit only while the value
// stays at most `maximum`, "." or "," as the point when there are decimals and `pointTaken` is
// false, "+" as "000". False when the character is refused (the caller beeps); a point that
// cannot be used is ignored, not refused.
bool TypeIntoNumber(QString &entry, QChar c, double maximum, int decimals, bool pointTaken);
// A date entry before the box inserts a typed digit: "dd" and "dd.mm" get their dots.
QString DateBeforeDigit(const QString &text);
// A date entry before the box deletes a character: an automatic dot goes with the digit before
// it ("dd." and "dd.mm." lose the dot first).
QString DateBeforeBackspace(const QString &text);
