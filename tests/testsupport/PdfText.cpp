#include "testsupport/PdfText.h"

#include <QProcess>

QString PdfText(const QString &path)
{
    QProcess text;
    text.start(QStringLiteral("pdftotext"), { QStringLiteral("-layout"), path, QStringLiteral("-") });
    if (!text.waitForFinished(20000))
        return QString();
    return QString::fromUtf8(text.readAllStandardOutput());
}
