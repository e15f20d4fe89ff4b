#include "testsupport/PdfPrintout.h"

#include "printing/PrintSettings.h"
#include "testsupport/ScreenFixture.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTextDocumentFragment>

#include <algorithm>

PdfPrintout::PdfPrintout(QObject *context, const std::function<void()> &press, std::function<void(QWidget *)> dialog)
{
    PrintSettings &settings = printSettings();
    settings.dotMatrix = false;
    settings.target = PrintSettings::GraphicTarget::PdfFile;
    settings.pdfFile = m_dir.filePath(QStringLiteral("cikti.pdf"));
    AnswerPrinterSetup("Command4", context, std::move(dialog));
    press();
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), { QStringLiteral("-bbox"), settings.pdfFile, QStringLiteral("-") });
    if (!reader.waitForFinished(20000))
        return;
    const QString html = QString::fromUtf8(reader.readAllStandardOutput());
    static const QRegularExpression tag(QStringLiteral(
        R"re(<page width="[\d.]+" height="([\d.]+)">|<word xMin="([\d.]+)" yMin="[\d.]+" xMax="[\d.]+" yMax="([\d.]+)">([^<]*)</word>)re"));
    for (auto match = tag.globalMatch(html); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        if (!found.captured(1).isEmpty())
            m_pages.append(Page { found.captured(1).toDouble(), {} });
        else if (!m_pages.isEmpty())
            m_pages.last().words.append(Word { QTextDocumentFragment::fromHtml(found.captured(4)).toPlainText(),
                found.captured(2).toDouble(), found.captured(3).toDouble() });
    }
}

QString PdfPrintout::text(int page) const
{
    QString all;
    for (const Word &word : m_pages.value(page).words)
        all += word.text;
    return all.remove(u' ');
}

QString PdfPrintout::lastLine(const Page &page, double *bottom)
{
    *bottom = 0;
    for (const Word &word : page.words)
        *bottom = std::max(*bottom, word.bottom);
    QList<Word> line;
    for (const Word &word : page.words)
        if (word.bottom > *bottom - 2)
            line.append(word);
    std::sort(line.begin(), line.end(), [](const Word &a, const Word &b) { return a.left < b.left; });
    QString text;
    for (const Word &word : line)
        text += word.text;
    return text.remove(u' ');
}

QString PdfPrintout::footingFault(const QString &footing) const
{
    if (m_pages.isEmpty())
        return QStringLiteral("no pages");
    const QString wanted = QString(footing).remove(u' ');
    for (int p = 0; p < m_pages.size(); ++p) {
        double bottom = 0;
        const QString line = lastLine(m_pages[p], &bottom);
        if (!line.startsWith(wanted))
            return QStringLiteral("page %1 ends with \"%2\"").arg(p + 1).arg(line);
        if (bottom > m_pages[p].height)
            return QStringLiteral("page %1: the footing stands below the page").arg(p + 1);
    }
    return QString();
}
