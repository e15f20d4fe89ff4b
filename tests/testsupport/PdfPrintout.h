#pragma once

#include <QList>
#include <QString>
#include <QTemporaryDir>

#include <functional>

class QObject;
class QWidget;

// A printout written as a PDF file through the printer settings dialog, read back page by page
// with where each word stands (pdftotext). Texts are compared without blanks: pdftotext may close
// up the spaced captions.
class PdfPrintout
{
public:
    // Chooses the PDF target, lets dialog set the dialog's controls (when given), confirms it and
    // runs press, which starts the printout.
    PdfPrintout(QObject *context, const std::function<void()> &press, std::function<void(QWidget *)> dialog = {});

    int pageCount() const { return int(m_pages.size()); }
    QString text(int page) const;
    // What is wrong with the pages' ends: every page must end with a line that begins with
    // footing and stands inside the page. Empty when nothing is.
    QString footingFault(const QString &footing) const;

private:
    struct Word
    {
        QString text;
        double left, bottom;
    };
    struct Page
    {
        double height = 0;
        QList<Word> words;
    };
    // The words of a page's lowest line, left to right, without blanks.
    static QString lastLine(const Page &page, double *bottom);

    QTemporaryDir m_dir;
    QList<Page> m_pages;
};
