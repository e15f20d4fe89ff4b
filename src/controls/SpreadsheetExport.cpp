#include "controls/SpreadsheetExport.h"

#include "controls/DcListModel.h"

#include <QDate>
#include <QDesktopServices>
#include <QLocale>
#include <QUrl>

#include <xlsxwriter.h>

namespace {

SheetOpener &opener()
{
    static SheetOpener installed;
    return installed;
}

QDate dateOf(const QString &text)
{
    return QDate::fromString(text.trimmed(), QStringLiteral("dd.MM.yyyy"));
}

void writeText(lxw_worksheet *sheet, int row, int column, const QString &text, lxw_format *format = nullptr)
{
    if (!text.isEmpty())
        worksheet_write_string(sheet, lxw_row_t(row), lxw_col_t(column), text.toUtf8().constData(), format);
}

void writeDate(lxw_worksheet *sheet, int row, int column, QDate date, lxw_format *format)
{
    lxw_datetime value = { date.year(), date.month(), date.day(), 0, 0, 0 };
    worksheet_write_datetime(sheet, lxw_row_t(row), lxw_col_t(column), &value, format);
}

void writeCell(lxw_worksheet *sheet, int row, int column, const DcColumn &kind, const QString &value, lxw_format *dates)
{
    if (value.isEmpty())
        return;
    if (kind.isNumber()) {
        bool ok = false;
        const double number = QLocale::c().toDouble(value.trimmed(), &ok);
        if (ok) {
            worksheet_write_number(sheet, lxw_row_t(row), lxw_col_t(column), number, nullptr);
            return;
        }
    } else if (kind.isDate() && dateOf(value).isValid()) {
        writeDate(sheet, row, column, dateOf(value), dates);
        return;
    }
    writeText(sheet, row, column, value);
}

} // namespace

bool WriteListSheet(const QString &path, const QStringList &titles, const DcListModel &list, double headerPointSize)
{
    lxw_workbook *book = workbook_new(path.toUtf8().constData());
    if (!book)
        return false;
    lxw_worksheet *sheet = workbook_add_worksheet(book, nullptr);
    lxw_format *bold = workbook_add_format(book);
    format_set_bold(bold);
    lxw_format *caption = workbook_add_format(book);
    format_set_bold(caption);
    format_set_font_size(caption, headerPointSize);
    lxw_format *dates = workbook_add_format(book);
    format_set_num_format(dates, "dd.mm.yyyy");

    writeText(sheet, 0, 0, titles.value(0), bold);
    if (dateOf(titles.value(1)).isValid())
        writeDate(sheet, 0, 1, dateOf(titles.value(1)), dates);
    else
        writeText(sheet, 0, 1, titles.value(1));
    writeText(sheet, 0, 2, titles.value(2));
    writeText(sheet, 0, 3, titles.value(3));

    const std::vector<DcColumn> &columns = list.columns();
    for (size_t c = 0; c < columns.size(); ++c)
        writeText(sheet, 3, int(c), columns[c].caption, caption);
    for (int row = 0; row < list.rowCount(); ++row)
        for (size_t c = 0; c < columns.size(); ++c)
            writeCell(sheet, 4 + row, int(c), columns[c], list.cell(row, int(c)), dates);
    return workbook_close(book) == LXW_NO_ERROR;
}

bool OpenSheet(const QString &path)
{
    if (opener())
        return opener()(path);
    return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

void SetSheetOpener(SheetOpener installed)
{
    opener() = std::move(installed);
}
