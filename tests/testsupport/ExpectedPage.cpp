#include "testsupport/ExpectedPage.h"

#include "printing/RawText.h"

#include <QList>
#include <QProcess>

ExpectedRawPage &ExpectedRawPage::field(const QString &text, int width, int align, bool bold)
{
    m_bytes += RawField(FitField(text, width, align), bold, false, false);
    return *this;
}

ExpectedRawPage &ExpectedRawPage::endLine()
{
    m_bytes += "\r\n";
    ++m_lines;
    return *this;
}

ExpectedRawPage &ExpectedRawPage::endPage(int linesPerPage)
{
    while (m_lines < linesPerPage)
        field(QStringLiteral(" ")).endLine();
    m_lines = 0;
    return *this;
}

ExpectedRawPage &ExpectedRawPage::raw(const QByteArray &bytes)
{
    m_bytes += bytes;
    return *this;
}

QString PdfText(const QString &path)
{
    QProcess text;
    text.start(QStringLiteral("pdftotext"), { QStringLiteral("-layout"), path, QStringLiteral("-") });
    if (!text.waitForFinished(20000))
        return QString();
    return QString::fromUtf8(text.readAllStandardOutput());
}

QString FirstDifference(const QByteArray &actual, const QByteArray &expected)
{
    if (actual == expected)
        return QString();
    const QList<QByteArray> got = actual.split('\n');
    const QList<QByteArray> want = expected.split('\n');
    for (qsizetype i = 0; i < qMax(got.size(), want.size()); ++i) {
        if (got.value(i) != want.value(i))
            return QStringLiteral("line %1:\n  got:      %2\n  expected: %3")
                .arg(i + 1)
                .arg(QString::fromLatin1(got.value(i).toPercentEncoding(" _.,:-()")),
                    QString::fromLatin1(want.value(i).toPercentEncoding(" _.,:-()")));
    }
    return QStringLiteral("the printouts differ");
}
