#include "testsupport/SheetCells.h"

#include <QProcess>

// The sheet's cells, as "reference=text" for texts and "reference=#number" for numbers and
// dates, read with Python's zipfile.
QStringList SheetCells(const QString &path)
{
    const QString script
        = QStringLiteral("import re,sys,zipfile\n"
                         "z=zipfile.ZipFile(sys.argv[1])\n"
                         "s=re.findall(r'<t[^>]*>([^<]*)</t>',z.read('xl/sharedStrings.xml').decode())\n"
                         "for a,b in re.findall(r'<c ([^>]*)>(.*?)</c>',z.read('xl/worksheets/sheet1.xml').decode()):\n"
                         "  r=re.search(r'r=\"(\\w+)\"',a).group(1); t=re.search(r't=\"(\\w+)\"',a); "
                         "v=re.search(r'<v>([^<]*)</v>',b).group(1)\n"
                         "  print(r+'='+(s[int(v)] if t and t.group(1)=='s' else '#'+v))\n");
    QProcess python;
    python.start(QStringLiteral("python3"), { QStringLiteral("-c"), script, path });
    if (!python.waitForFinished(20000))
        return { QStringLiteral("python3 did not finish") };
    return QString::fromUtf8(python.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
}
