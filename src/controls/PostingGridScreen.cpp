#include "controls/PostingGridScreen.h"

#include "books/Message.h"
#include "controls/DcList.h"

#include <QTableView>

PostingGridScreen::PostingGridScreen(const QString &formName, const QString &caption, PostingBook book, QWidget *parent)
    : Screen(formName, caption, parent)
    , m_list(new DcList(this))
    , m_book(book)
{
    m_list->setObjectName(QStringLiteral("dclist1"));
    m_list->setZebra(true);
    m_list->setOtoIncrement(true);
    m_list->setEditable(false);
    m_list->setScroll(1);
    connect(m_list, &DcList::UpdateData, this, [this](int row) { storeRow(row); });
    connect(m_list, &DcList::OperasyonDelete, this, &PostingGridScreen::deleteRow);
}

qint64 PostingGridScreen::editedKey() const
{
    return m_list->Text(m_keyColumn).toLongLong();
}

void PostingGridScreen::rowStored(qint64 oto)
{
    m_list->setText(m_keyColumn, QString::number(oto));
    m_list->OkUpdateData();
    recompute(m_list->CurSat());
    m_list->MoveNext();
}

void PostingGridScreen::endListing()
{
    m_list->CreateNewCaption();
    m_list->UseKeys(Qt::Key_Home, Qt::ControlModifier);
    m_list->UseKeys(Qt::Key_End, Qt::ControlModifier);
}

Currency PostingGridScreen::amountAt(int row, int column) const
{
    return Currency::fromString(m_list->Caption(row, column));
}

void PostingGridScreen::deleteRow(int row)
{
    if (rowAmount(row) <= Currency())
        return;
    const qint64 oto = m_list->Caption(row, m_keyColumn).toLongLong();
    if (oto <= 0) {
        if (!m_missingKeyNotice.isEmpty())
            Message::notice(m_missingKeyNotice);
        return;
    }
    if (!PostingExists(m_book, oto) || !Message::question(m_deleteQuestion))
        return;
    if (DeletePosting(m_book, oto)) {
        m_list->OperasyonDeleteReturn(true, row);
        recompute(row);
    }
}
