#pragma once

#include "books/Postings.h"
#include "controls/Screen.h"
#include "money/Currency.h"

class DcList;

// What the screens that keep postings in an editable grid share: the grid ("dclist1") with
// their options, one empty row at the end for a new entry, the hidden key column holding each
// row's oto, storing a completed row and deleting one after the question.
class PostingGridScreen : public Screen
{
    Q_OBJECT
public:
    PostingGridScreen(const QString &formName, const QString &caption, PostingBook book, QWidget *parent);

protected:
    DcList *list() const { return m_list; }
    // The key column (defined by the screen with the others) and the question a delete asks.
    void setKeyColumn(int column) { m_keyColumn = column; }
    void setDeleteQuestion(const QString &text) { m_deleteQuestion = text; }
    // What a delete of a row without a key says ("" for nothing).
    void setMissingKeyNotice(const QString &text) { m_missingKeyNotice = text; }
    // The key of the row being stored (0 for a new one).
    qint64 editedKey() const;
    // After a row was stored as oto: the key goes into the row, the grid takes the row, the
    // totals follow and the grid moves on (appending a new empty row after the last).
    void rowStored(qint64 oto);
    // After a listing: the empty row for a new entry; the grid stands on it.
    void endListing();
    // Column text of a row as an amount.
    Currency amountAt(int row, int column) const;

    // A completed row to store (the grid's row edit buffer holds it).
    virtual void storeRow(int row) = 0;
    // The amount that makes a row worth deleting (nothing happens when it is not above 0).
    virtual Currency rowAmount(int row) const = 0;
    // Totals and balances after a change of the rows from fromRow on (the rows before it are as
    // they were).
    virtual void recompute(int fromRow) = 0;

private:
    void deleteRow(int row);

    DcList *m_list;
    PostingBook m_book;
    int m_keyColumn = 0;
    QString m_deleteQuestion = QStringLiteral("Hareket Silinecek Eminmisiniz ?");
    QString m_missingKeyNotice = QStringLiteral("İndex Bilgileri Yok..");
};
