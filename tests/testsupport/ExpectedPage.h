#pragma once

#include <QByteArray>
#include <QString>

// The bytes a dot-matrix printer should receive, written field by field the way the print
// engine sends them, so that a test states a printed page line by line.
class ExpectedRawPage
{
public:
    // A field fitted to width columns (0 left, 1 right, 2 centred; width 0: the text as it is).
    ExpectedRawPage &field(const QString &text, int width = 0, int align = 0, bool bold = false);
    ExpectedRawPage &bold(const QString &text, int width = 0, int align = 0) { return field(text, width, align, true); }
    ExpectedRawPage &gap() { return field(QStringLiteral(" "), 1); }
    ExpectedRawPage &rule(int width) { return field(QString(width, u'_')); }
    ExpectedRawPage &endLine();
    // The blank lines with which the engine ends a page of linesPerPage lines.
    ExpectedRawPage &endPage(int linesPerPage);
    ExpectedRawPage &raw(const QByteArray &bytes);

    QByteArray bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
    int m_lines = 0; // lines ended on the current page
};

// The text of a PDF file as pdftotext lays it out, pages ended by form feeds ("" when it cannot
// be read).
QString PdfText(const QString &path);

// Where two printouts part: "" when they are equal, else the number and both versions of the
// first line that differs (lines end with CR LF), for a readable failure.
QString FirstDifference(const QByteArray &actual, const QByteArray &expected);
