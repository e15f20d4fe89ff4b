#pragma once

#include <QString>

// The text of a PDF file as pdftotext lays it out, pages ended by form feeds ("" when it cannot
// be read).
QString PdfText(const QString &path);
