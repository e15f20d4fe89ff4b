#pragma once

#include <QStringList>

class QTextStream;

// "serbestmeslek --esmm-aktar PATH...": brings the e-SMMs under the paths into the books beside
// the program, without a window: a line per document with its status, then the counts. Answers
// the exit status: 0 when every document was posted or was in the books already, 1 when any was
// held back or unreadable, 2 when the books could not be opened (it never creates them).
int RunEsmmCommand(const QString &programFolder, const QStringList &paths, QTextStream &out);

// The command line's help text.
QString CommandLineHelp();
