#include "testsupport/Golden.h"

#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QStringList>
#include <QTest>

namespace {

// Code page 857's Turkish letters; the printer gets every other letter of a printout as ASCII.
QChar cp857Letter(unsigned char byte)
{
    static const QHash<unsigned char, QChar> letters
        = { { 128, u'Ç' }, { 166, u'Ğ' }, { 153, u'Ö' }, { 154, u'Ü' }, { 152, u'İ' }, { 158, u'Ş' }, { 135, u'ç' },
              { 167, u'ğ' }, { 148, u'ö' }, { 129, u'ü' }, { 141, u'ı' }, { 159, u'ş' } };
    return letters.value(byte);
}

const QHash<QByteArray, QString> &controls()
{
    static const QHash<QByteArray, QString> marks = { { "\017", "<c>" }, { "\022", "</c>" }, { "\033G", "<b>" },
        { "\033H", "</b>" }, { "\0334", "<i>" }, { "\0335", "</i>" }, { QByteArray("\033-\001", 3), "<u>" },
        { QByteArray("\033-\000", 3), "</u>" }, { "\014", "<ff>" }, { "\r", "<cr>" }, { "\n", "<lf>" } };
    return marks;
}

QString rawLine(const QByteArray &bytes)
{
    QString text;
    for (qsizetype i = 0; i < bytes.size();) {
        bool marked = false;
        for (int length = 3; length > 0 && !marked; --length) {
            const auto mark = controls().constFind(bytes.mid(i, length));
            if (mark != controls().cend()) {
                text += *mark;
                i += length;
                marked = true;
            }
        }
        if (marked)
            continue;
        const auto byte = static_cast<unsigned char>(bytes[i++]);
        if (byte == '<')
            text += QStringLiteral("<lt>");
        else if (byte >= 32 && byte < 127)
            text += QChar(byte);
        else if (!cp857Letter(byte).isNull())
            text += cp857Letter(byte);
        else
            text += QStringLiteral("<x%1>").arg(byte, 2, 16, QLatin1Char('0'));
    }
    return text;
}

} // namespace

QString RawPrintout(const QByteArray &bytes)
{
    const QList<QByteArray> pieces = bytes.split('\n');
    QString text;
    for (qsizetype i = 0; i + 1 < pieces.size(); ++i) {
        if (pieces[i].endsWith('\r'))
            text += rawLine(pieces[i].chopped(1)) + QStringLiteral("|\n");
        else
            text += rawLine(pieces[i]) + QStringLiteral("<lf>");
    }
    return text + rawLine(pieces.last()); // what follows the last line's end
}

QString RowGoldenFile(const QString &folder)
{
    static const QRegularExpression others(QStringLiteral("[^a-z0-9]+"));
    const QString row = QString::fromUtf8(QTest::currentDataTag()).toLower().replace(others, QStringLiteral("-"));
    return folder + u'/' + row + QStringLiteral(".txt");
}

QString GoldenDifference(const QString &text, const QString &file)
{
    QFile golden(QStringLiteral(SM_TESTS_DIR "/") + file);
    if (qEnvironmentVariableIntValue("SM_RENEW_GOLDEN") == 1) {
        if (!golden.open(QIODevice::WriteOnly) || golden.write(text.toUtf8()) < 0)
            return QStringLiteral("cannot write ") + golden.fileName();
        return QString();
    }
    if (!golden.open(QIODevice::ReadOnly))
        return QStringLiteral("no golden file ") + golden.fileName();
    const QStringList want = QString::fromUtf8(golden.readAll()).split(u'\n');
    const QStringList got = text.split(u'\n');
    for (qsizetype i = 0; i < qMax(got.size(), want.size()); ++i) {
        if (got.value(i) != want.value(i))
            return QStringLiteral("%1, line %2:\n  got:      %3\n  expected: %4")
                .arg(file)
                .arg(i + 1)
                .arg(i < got.size() ? got[i] : QStringLiteral("(no line)"),
                    i < want.size() ? want[i] : QStringLiteral("(no line)"));
    }
    return QString();
}
