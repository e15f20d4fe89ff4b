#pragma once

#include <QString>

// When the books are copied into yedek/: as they open (the window's start), or before the
// first change (a command-line run, which copies nothing when it changes nothing).
enum class BooksCopy { AtStart, BeforeChange };

// The books as the program starts on them, windows aside: number conventions, the data file in
// programFolder (opened, or created and opened), a copy into yedek/ and the parameters. False
// (after "Dosyalar Yaratılamıyor...") when the data file can be neither opened nor created, or
// after saying why an existing file is left alone (in use by another program, not ours, damaged).
bool OpenBooks(const QString &programFolder, BooksCopy copy = BooksCopy::AtStart);
