#pragma once

#include <QByteArray>
#include <QString>

// Expected output kept as readable text files under tests/, written from the rules and read by
// eye before they are committed.

// The bytes a dot-matrix printer receives as text: a line per CR LF, each ended by "|" so that
// its blanks show; the printer's controls as marks (<c> condensed, </c> normal width, <b> </b>
// bold, <i> </i> italic, <u> </u> underline, <ff> form feed, <cr> <lf> alone, <xHH> any other
// byte, <lt> a "<" of the text); Turkish letters read from code page 857 by the table here.
QString RawPrintout(const QByteArray &bytes);

// "" when text equals the golden file (a path under tests/), else the file and the first line
// that differs, as both have it. With SM_RENEW_GOLDEN=1 in the environment the file is written
// with text instead: read its difference before you commit it.
QString GoldenDifference(const QString &text, const QString &file);

// The golden file of the running test's data row in folder (a path under tests/): the row's name
// in lower case, each run of other characters than letters and digits a "-".
QString RowGoldenFile(const QString &folder);

#define COMPARE_GOLDEN(text, file)                                                                                     \
    do {                                                                                                               \
        const QString goldenDifference = GoldenDifference(text, file);                                                 \
        QVERIFY2(goldenDifference.isEmpty(), qPrintable(goldenDifference));                                            \
    } while (false)
