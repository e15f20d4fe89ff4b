#include "controls/DcList.h"

#include "books/Clock.h"
#include "books/Message.h"
#include "controls/DcCellEditor.h"
#include "controls/DcListModel.h"
#include "controls/EntryRules.h"
#include "controls/FigureDelegate.h"
#include "controls/QuickFont.h"
#include "controls/SpreadsheetExport.h"
#include "money/AmountConventions.h"
#include "money/RoundAmount.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

const QLocale turkish(QLocale::Turkish, QLocale::Turkey);
const QString dateFormat = QStringLiteral("dd.MM.yyyy");

QFont namedFont(const QString &name, int size, bool bold)
{
    QFont font(name);
    font.setPointSize(size > 0 ? size : 10);
    font.setBold(bold);
    return font;
}

} // namespace

DcList::DcList(QWidget *parent)
    : QWidget(parent)
    , m_view(new QTableView(this))
    , m_model(new DcListModel(this))
    , m_editor(new DcCellEditor(m_view->viewport()))
{
    m_view->setModel(m_model);
    auto *figures = new FigureDelegate(m_model, m_view);
    m_view->setItemDelegate(figures);
    // Widened after the paint that found the figure too wide; the view then paints it again.
    connect(
        figures, &FigureDelegate::columnTooNarrow, this,
        [this](int column, int width) {
            if (m_view->columnWidth(column) >= width)
                return;
            m_view->setColumnWidth(column, width);
            if (m_editor->isVisible())
                placeEditor(); // an open cell moves with its column
        },
        Qt::QueuedConnection);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setTabKeyNavigation(false);
    m_view->setWordWrap(false);
    m_view->verticalHeader()->hide();
    m_view->horizontalHeader()->setFont(HeaderFont());
    m_view->horizontalHeader()->setHighlightSections(false);
    m_view->horizontalHeader()->setSectionsClickable(true);
    setCellFont(CellFont());
    m_view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_view->setHorizontalScrollMode(QAbstractItemView::ScrollPerItem);
    m_view->installEventFilter(this);
    m_view->viewport()->installEventFilter(this);
    m_editor->installEventFilter(this);
    setFocusProxy(m_view);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);

    connect(m_view->horizontalHeader(), &QHeaderView::sectionClicked, this, &DcList::headerClicked);
    connect(m_view, &QTableView::doubleClicked, this, [this](const QModelIndex &index) {
        moveTo(index.row());
        if (m_editable)
            ChngMode(2);
    });
    applyColors();
}

DcList::~DcList() = default;

// Columns --------------------------------------------------------------------------------

QVariant DcList::Add(const QString &type, const QString &name, const QString &caption, int width, double maxValue,
    int kosul, int ondaHane, int binlikAyrac)
{
    if (type.isEmpty() || !IsColumnType(type.front()))
        return QVariant();
    DcColumn column;
    column.type = type.front();
    column.name = name.toUpper();
    column.caption = caption;
    column.width = qBound(0, width, 9999);
    column.maxValue = maxValue;
    column.kosul = kosul & 0xff;
    column.onda = ondaHane & 0xff;
    column.grup = binlikAyrac & 0xff;
    m_model->addColumn(column);
    const int index = m_model->columnCount() - 1;
    m_view->setColumnWidth(index, column.width);
    m_buffer.append(QString());
    return index;
}

void DcList::Reset()
{
    m_model->removeAllColumns();
    m_buffer.clear();
}

QString DcList::Baslik(int col) const
{
    return col >= 0 && col < m_model->columnCount() ? m_model->columns()[size_t(col)].caption : QString();
}

void DcList::setBaslik(int col, const QString &caption)
{
    if (col < 0 || col >= m_model->columnCount())
        return;
    m_model->column(col).caption = caption;
    emit m_model->headerDataChanged(Qt::Horizontal, col, col);
}

void DcList::AlignRight(int col)
{
    if (col >= 0 && col < m_model->columnCount())
        m_model->column(col).right = true;
}

int DcList::Size(int col) const
{
    return col >= 0 && col < m_model->columnCount() ? m_model->columns()[size_t(col)].width : 0;
}

QString DcList::SectionName(int col) const
{
    return col >= 0 && col < m_model->columnCount() ? m_model->columns()[size_t(col)].name : QString();
}

void DcList::setSectionName(int col, const QString &name)
{
    if (col >= 0 && col < m_model->columnCount())
        m_model->column(col).name = name.toUpper();
}

double DcList::MaxValue(int col) const
{
    return m_model->columns().at(size_t(col)).maxValue;
}

int DcList::OndaHane(int col) const
{
    return m_model->columns().at(size_t(col)).onda;
}

int DcList::BinlikAyrac(int col) const
{
    return m_model->columns().at(size_t(col)).grup;
}

int DcList::Kosul(int col) const
{
    return m_model->columns().at(size_t(col)).kosul;
}

void DcList::BaslikFont(const QString &name, int size, bool bold)
{
    m_view->horizontalHeader()->setFont(namedFont(name, size, bold));
}

void DcList::TextFont(const QString &name, int size, bool bold)
{
    setCellFont(namedFont(name, size, bold));
}

// Rows are the font's height plus the row spacing of 2 above and below.
void DcList::setCellFont(const QFont &font)
{
    m_view->setFont(font);
    m_editor->setFont(font);
    m_view->verticalHeader()->setDefaultSectionSize(QFontMetrics(font).height() + 2 * 2);
}

// Rows and cells ---------------------------------------------------------------------------

int DcList::CreateNewCaption()
{
    return AddCaptionRows({ QStringList() }) == 1 ? ListCount() - 1 : -1;
}

int DcList::AddCaptionRows(std::vector<QStringList> rows)
{
    const size_t wanted = rows.size();
    const int added = m_model->appendRows(std::move(rows));
    if (size_t(added) < wanted)
        tellFull();
    return added;
}

// A full list says so once until it is emptied: what it shows is not all there is.
void DcList::tellFull()
{
    if (m_toldFull)
        return;
    m_toldFull = true;
    Message::information(QStringLiteral("Liste %1 satırda kesildi; tarih aralığını daraltınız.")
                             .arg(QLocale(QLocale::Turkish).toString(DcListModel::MaxRows)));
}

int DcList::ListCount() const
{
    return m_model->rowCount();
}

QString DcList::Caption(int row, int col) const
{
    return m_model->cell(row, col);
}

void DcList::setCaption(int row, int col, const QString &value)
{
    m_model->setCell(row, col, value);
}

void DcList::setColumnCaptions(int col, int fromRow, const QStringList &values)
{
    m_model->setColumnFrom(col, fromRow, values);
}

QString DcList::CaptionByName(int row, const QString &name) const
{
    return m_model->cell(row, m_model->columnByName(name));
}

void DcList::setCaptionByName(int row, const QString &name, const QString &value)
{
    m_model->setCell(row, m_model->columnByName(name), value);
}

QString DcList::Text(int col) const
{
    return m_buffer.value(col);
}

void DcList::setText(int col, const QString &value)
{
    if (col >= 0 && col < m_buffer.size())
        m_buffer[col] = value;
}

QString DcList::TextByName(const QString &name) const
{
    return Text(m_model->columnByName(name));
}

void DcList::setTextByName(const QString &name, const QString &value)
{
    setText(m_model->columnByName(name), value);
}

void DcList::moveTo(int row)
{
    if (row < 0 || row >= ListCount())
        return;
    if (row != m_current)
        dropHeldRow();
    m_current = row;
    const QModelIndex index = m_model->index(row, qMax(0, m_view->currentIndex().column()));
    m_view->setCurrentIndex(index);
    m_view->scrollTo(index);
}

void DcList::ChngSat(int row)
{
    if (row < 0 || row >= ListCount())
        return;
    moveTo(row);
    emit SatirChange(row);
}

void DcList::MoveNext()
{
    if (m_otoIncrement && m_current == ListCount() - 1)
        CreateNewCaption();
    ChngSat(m_current + 1);
}

void DcList::MovePre()
{
    ChngSat(m_current - 1);
}

void DcList::ChngMode(int mode)
{
    if (mode == 2 && m_mode != 2)
        openEditor(QString());
    else if (mode != 2 && m_mode == 2)
        closeEditor();
    else
        m_mode = mode;
}

void DcList::Clear()
{
    if (m_mode == 2)
        closeEditor();
    m_heldRow = -1;
    m_toldFull = false;
    m_model->clearRows();
    m_current = -1;
}

void DcList::Tazele()
{
    m_view->viewport()->update();
    m_view->horizontalHeader()->viewport()->update();
}

void DcList::Flash()
{
    if (m_current >= 0)
        m_model->setOverlay(m_current, m_buffer);
}

bool DcList::FindByName(const QString &name, const QString &text, int from)
{
    const int row = m_model->findRow(m_model->columnByName(name), text, from);
    if (row < 0) {
        Message::information(QStringLiteral("Aranan Kayıt Bulunamadı !"));
        return false;
    }
    ChngSat(row);
    return true;
}

void DcList::headerClicked(int col)
{
    if (!m_sort)
        return;
    m_ascending = !m_ascending;
    sorting(col);
}

void DcList::sorting(int col)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_model->sortRows(col, m_ascending);
    QApplication::restoreOverrideCursor();
}

void DcList::widenToTexts(int col)
{
    const int wanted = static_cast<const QAbstractItemView *>(m_view)->sizeHintForColumn(col); // public there
    if (wanted > m_view->columnWidth(col))
        m_view->setColumnWidth(col, wanted);
}

void DcList::fitToColumns(int rows)
{
    int width = 0;
    for (int c = 0; c < m_model->columnCount(); ++c)
        width += Size(c);
    const int frame = 2 * m_view->frameWidth() + m_view->verticalScrollBar()->sizeHint().width();
    m_fitted = QSize(width + frame, rows * m_view->verticalHeader()->defaultSectionSize());
    updateGeometry();
}

// The size that shows every column: what a screen opens with; the user may make it smaller (the
// list then scrolls).
QSize DcList::sizeHint() const
{
    return m_fitted.isValid() ? m_fitted : QWidget::sizeHint();
}

bool DcList::SendExel(const QString &title, const QString &text2, const QString &text3, const QString &text4)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"));
    const QString path = QDir(QStandardPaths::writableLocation(QStandardPaths::TempLocation))
                             .filePath(QStringLiteral("liste-%1.xlsx").arg(stamp));
    const bool done = WriteListSheet(path, { title, text2, text3, text4 }, *m_model,
                          m_view->horizontalHeader()->font().pointSizeF())
        && OpenSheet(path);
    QApplication::restoreOverrideCursor();
    if (!done)
        Message::information(QStringLiteral("Excell Yüklü Değil veya Desteklenmeyen Versiyon"));
    return done;
}

QString DcList::curtext(const QString &text, int col) const
{
    return col >= 0 && col < m_model->columnCount() ? m_model->columns()[size_t(col)].display(text) : text;
}

// Answers ---------------------------------------------------------------------------------

void DcList::OkUpdateData(int row)
{
    if (row < 0)
        row = editRow();
    while (ListCount() <= row && CreateNewCaption() >= 0) { }
    QStringList values;
    for (int c = 0; c < m_model->columnCount(); ++c) {
        const DcColumn &column = m_model->columns()[size_t(c)];
        const QString value = m_buffer.value(c);
        if (column.type == u'N' || column.type == u'n')
            values << ExactNumberText(value);
        else if (column.kind() == u's')
            values << value.left(1);
        else
            values << value;
    }
    m_heldRow = -1;
    m_model->clearOverlay();
    m_model->setRow(row, values);
}

void DcList::OperasyonDeleteReturn(bool ok, int row)
{
    if (!ok)
        return;
    if (row < 0)
        row = m_current;
    dropHeldRow();
    m_model->removeRowAt(row);
    if (m_current >= ListCount())
        m_current = ListCount() - 1;
    moveTo(m_current);
}

void DcList::OnKosulReturn(bool ok, const QString &text)
{
    if (m_mode != 2 || !m_waitingForCheck)
        return;
    if (ok) {
        m_waitingForCheck = false;
        acceptCell(text);
    } else {
        AlanDegisti(-101);
    }
}

void DcList::LockedReturn(bool value)
{
    if (value && m_mode != 2) {
        const QString typed = m_pendingTyped;
        m_pendingTyped.clear();
        m_locked = false;
        openEditor(typed);
        m_locked = true;
    }
}

void DcList::AlanDegisti(int alan)
{
    if (m_waitingForCheck) { // the screen never accepted the checked value
        m_waitingForCheck = false;
        setText(m_column, m_valueBeforeCheck);
    }
    const int columns = m_model->columnCount();
    int target = alan > 100 ? m_column + 1 : alan < -100 ? m_column - 1 : alan;
    const int step = alan < -100 ? -1 : 1;
    while (target >= 0 && target < columns && m_model->columns()[size_t(target)].skipped())
        target += step;
    if (target >= columns) {
        const int row = editRow();
        m_heldRow = row; // shown as typed until the screen acknowledges it
        closeEditor();
        emit UpdateData(row);
        return;
    }
    if (target < 0) {
        closeEditor();
        return;
    }
    m_column = target;
    m_cellLock = false;
    m_editor->setCellLock(false);
    m_editor->open(m_model->columns()[size_t(target)], m_buffer.value(target));
    placeEditor();
    emit AlanChanged(target);
}

// A suggestion: typing replaces it, Enter takes it.
void DcList::SetTextBox(const QString &text)
{
    if (m_mode == 2) {
        m_editor->setText(text);
        m_editor->selectAll();
    }
}

void DcList::setCellLock(bool on)
{
    m_cellLock = on;
    m_editor->setCellLock(on);
}

// Editing -----------------------------------------------------------------------------------

void DcList::openEditor(const QString &typed)
{
    if (m_model->columnCount() == 0)
        return;
    if (m_locked) {
        m_pendingTyped = typed;
        emit isLocked(editRow());
        return;
    }
    if (m_current < 0 || m_current >= ListCount())
        m_current = qMax(0, qMin(m_current, ListCount()));
    m_cellLock = false;
    m_editor->setCellLock(false);
    if (m_heldRow != m_current) {
        dropHeldRow();
        m_buffer.clear();
        for (int c = 0; c < m_model->columnCount(); ++c)
            m_buffer << m_model->cell(m_current, c);
    }
    m_view->verticalScrollBar()->setEnabled(false);
    m_view->horizontalScrollBar()->setEnabled(false);
    m_mode = 2;
    m_model->setOverlay(m_current, m_buffer);
    emit ChangeEditMode(true);
    m_column = 0;
    AlanDegisti(0);
    if (m_mode == 2 && !typed.isEmpty()) {
        m_editor->clear();
        if (!m_editor->typeCharacter(typed.front(), false))
            m_editor->insert(typed);
    }
}

void DcList::closeEditor()
{
    m_view->verticalScrollBar()->setEnabled(true);
    m_view->horizontalScrollBar()->setEnabled(true);
    // The list takes the focus before the editor hides, so that it never passes to the
    // screen's next field on the way.
    m_view->setFocus();
    m_editor->hide();
    if (m_heldRow < 0)
        m_model->clearOverlay();
    m_waitingForCheck = false;
    m_mode = 1;
    emit ChangeEditMode(false);
    moveTo(m_current);
}

void DcList::dropHeldRow()
{
    if (m_heldRow < 0)
        return;
    m_heldRow = -1;
    m_model->clearOverlay();
}

void DcList::placeEditor()
{
    QModelIndex index = m_model->index(m_current, m_column);
    QRect cell = m_view->visualRect(index);
    if (!index.isValid()) { // a row below the list: under the last one
        const int height = m_view->verticalHeader()->defaultSectionSize();
        const int top = ListCount() > 0 ? m_view->visualRect(m_model->index(ListCount() - 1, 0)).bottom() + 1 : 0;
        cell = QRect(m_view->columnViewportPosition(m_column), top, m_view->columnWidth(m_column), height);
    } else {
        m_view->scrollTo(index);
        cell = m_view->visualRect(index);
    }
    m_editor->setGeometry(cell);
    m_editor->show();
    m_editor->setFocus();
}

bool DcList::checkCell()
{
    const DcColumn &column = m_model->columns()[size_t(m_column)];
    QString value = m_editor->text();
    if (column.isDate()) {
        if (value.size() < 10)
            value += Today().toString(dateFormat).mid(value.size());
        m_editor->setText(value);
        const QDate date = QDate::fromString(value, dateFormat);
        if (date.isValid() && (column.kosul == 4 || column.kosul == 5) && date.dayOfWeek() >= 6)
            Message::information(QStringLiteral("Tatil gününe denk gelen tarih girdiniz.\n   ")
                + turkish.toString(date, QStringLiteral("dd MMMM yyyy dddd")));
        if (!date.isValid() && (column.kosul == 1 || column.kosul == 4)) {
            Message::exclamation(QStringLiteral("Hatalı Tarih Girildi.\nDüzeltiniz."));
            return false;
        }
        return true;
    }
    if (column.isNumber()) {
        // Zero is what would be stored: the amount rounded as amounts are.
        if (column.kosul == 2 && RoundAmount(Currency::fromString(ExactNumberText(value))) == Currency()) {
            Message::exclamation(QStringLiteral("Bir Sayi Girmelisiniz."));
            return false;
        }
        return true;
    }
    if (column.kosul == 3 && value.isEmpty()) {
        Message::exclamation(QStringLiteral("En Az Bir Harf Girmelisiniz."));
        return false;
    }
    return true;
}

// Enter or Down in the editor: the cell's checks, then the next column; a checked column waits
// for the screen's answer, and Enter asks it again as long as none came.
void DcList::leaveCell()
{
    if (!checkCell()) {
        m_editor->setCursorPosition(0);
        return;
    }
    const DcColumn &column = m_model->columns()[size_t(m_column)];
    // An amount is rounded once, as it is accepted: the cell shows what will be stored.
    if (column.isNumber() && column.onda == amountConventions().tlonda && !m_editor->text().trimmed().isEmpty())
        m_editor->setText(KeptAmount(Currency::fromString(ExactNumberText(m_editor->text()))).toString());
    if (column.kosul != 6) {
        acceptCell(m_editor->text());
        return;
    }
    if (!m_waitingForCheck)
        m_valueBeforeCheck = Text(m_column);
    m_waitingForCheck = true;
    setText(m_column, m_editor->text()); // the screen's handler reads the typed value
    const int at = m_column;
    emit OnKosulVar(at, column.name, m_editor->text());
}

// Moves the current row by a key; nothing happens (and no row change is reported) at the ends.
void DcList::stepTo(int row)
{
    if (row != m_current && row >= 0 && row < ListCount())
        ChngSat(row);
}

void DcList::acceptCell(const QString &value)
{
    setText(m_column, value);
    m_model->setOverlay(m_current, m_buffer);
    AlanDegisti(101);
}

// Keys ----------------------------------------------------------------------------------------

bool DcList::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        auto *key = static_cast<QKeyEvent *>(event);
        if (watched == m_editor)
            return editorKey(key);
        if (watched == m_view) // while editing, what reaches the list came up from the editor
            return m_mode == 2 || listKey(key);
    } else if (watched == m_view && event->type() == QEvent::FocusIn && m_mode == 0) {
        m_mode = 1;
        emit ListFocused();
    } else if (watched == m_view && event->type() == QEvent::FocusOut && m_mode == 1
        && QApplication::focusWidget() != m_editor) {
        m_mode = 0;
    } else if (watched == m_view->viewport() && event->type() == QEvent::MouseButtonPress && m_mode == 2) {
        m_editor->setFocus(); // a click on the list while a cell is open leaves the keys with the cell
        return true;
    } else if (watched == m_view->viewport() && event->type() == QEvent::MouseButtonPress) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        const QModelIndex index = m_view->indexAt(mouse->position().toPoint());
        if (index.isValid()) {
            emit MouseDown(int(mouse->button()), index.column(), index.row());
            ChngSat(index.row());
        }
    }
    return QWidget::eventFilter(watched, event);
}

void DcList::UseKeys(int key, Qt::KeyboardModifiers modifiers)
{
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    listKey(&event);
}

int DcList::pageRows() const
{
    return qMax(1, m_view->viewport()->height() / qMax(1, m_view->verticalHeader()->defaultSectionSize()));
}

bool DcList::listKey(QKeyEvent *event)
{
    const int key = event->key();
    const Qt::KeyboardModifiers held = event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
    const bool control = held == Qt::ControlModifier;
    QScrollBar *across = m_view->horizontalScrollBar();
    switch (key) {
    case Qt::Key_E:
        if (control) {
            SendExel(QString(), QString(), QString(), QString());
            return true;
        }
        break;
    case Qt::Key_Up:
        stepTo(m_current - 1);
        return true;
    case Qt::Key_Down:
        stepTo(m_current + 1);
        return true;
    case Qt::Key_PageUp:
        stepTo(qMax(0, m_current - pageRows()));
        return true;
    case Qt::Key_PageDown:
        stepTo(qMin(ListCount() - 1, m_current + pageRows()));
        return true;
    case Qt::Key_Home:
        across->setValue(across->minimum());
        if (control)
            stepTo(0);
        return true;
    case Qt::Key_End:
        across->setValue(across->maximum());
        if (control)
            stepTo(ListCount() - 1);
        return true;
    case Qt::Key_Left:
        across->triggerAction(control ? QAbstractSlider::SliderPageStepSub : QAbstractSlider::SliderSingleStepSub);
        return true;
    case Qt::Key_Right:
        across->triggerAction(control ? QAbstractSlider::SliderPageStepAdd : QAbstractSlider::SliderSingleStepAdd);
        return true;
    case Qt::Key_Insert:
        dropHeldRow();
        m_model->insertEmptyRow(qMax(0, m_current));
        ChngSat(qMax(0, m_current));
        return true;
    case Qt::Key_Delete:
        if (m_current >= 0)
            emit OperasyonDelete(m_current);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_editable && held == Qt::NoModifier) {
            openEditor(QString());
            return true;
        }
        break;
    default: {
        const QString text = event->text();
        if (m_editable && held == Qt::NoModifier && !text.isEmpty() && text.front().isPrint()) {
            openEditor(text);
            return true;
        }
        break;
    }
    }
    emit KeyDown(key, int(event->modifiers()), m_current);
    return true;
}

bool DcList::editorKey(QKeyEvent *event)
{
    const int key = event->key();
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
        leaveCell();
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab: // the editor keeps the focus until the row is done
        return true;
    case Qt::Key_Up:
        if (!m_cellLock)
            AlanDegisti(-101);
        return true;
    case Qt::Key_Escape:
        AlanDegisti(-101);
        return true;
    case Qt::Key_Delete:
        if (!m_cellLock && m_model->columns()[size_t(m_column)].isNumber()) {
            m_editor->clear();
            setText(m_column, QString());
            return true;
        }
        break;
    default:
        break;
    }
    const QString text = event->text();
    const bool character = key == Qt::Key_Backspace || (!text.isEmpty() && text.front().isPrint());
    if (!character && !m_cellLock)
        emit KeyDown(key, int(event->modifiers()), editRow());
    return m_cellLock && !character;
}

// Looks ----------------------------------------------------------------------------------------

bool DcList::Zebra() const
{
    return m_model->zebra();
}

void DcList::setZebra(bool on)
{
    m_model->setZebra(on);
}

bool DcList::BaslikVar() const
{
    return !m_view->horizontalHeader()->isHidden();
}

void DcList::setBaslikVar(bool on)
{
    m_view->horizontalHeader()->setVisible(on);
}

void DcList::setScroll(int bars)
{
    m_view->setVerticalScrollBarPolicy(bars & 1 ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    m_view->setHorizontalScrollBarPolicy(bars & 2 ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}

void DcList::setBgColor(const QColor &colour)
{
    m_background = colour;
    applyColors();
}

void DcList::setPassiveTextColor(const QColor &text, const QColor &back)
{
    m_model->setNormalColors(text, back);
}

void DcList::setZebraTextColor(const QColor &text, const QColor &back)
{
    m_model->setZebraColors(text, back);
}

void DcList::setActiveTextColor(const QColor &text, const QColor &back)
{
    m_activeText = text;
    m_activeBack = back;
    applyColors();
}

void DcList::setBaslikTextColor(const QColor &text, const QColor &back)
{
    m_headerText = text;
    m_headerBack = back;
    applyColors();
}

void DcList::applyColors()
{
    QPalette colours = m_view->palette();
    colours.setColor(QPalette::Base, m_background);
    colours.setColor(QPalette::Highlight, m_activeBack);
    colours.setColor(QPalette::HighlightedText, m_activeText);
    colours.setColor(QPalette::Inactive, QPalette::Highlight, m_activeBack);
    colours.setColor(QPalette::Inactive, QPalette::HighlightedText, m_activeText);
    m_view->setPalette(colours);
    m_view->horizontalHeader()->setStyleSheet(QStringLiteral("QHeaderView::section { color: %1; background: %2; "
                                                             "border: 1px solid #9ab89a; padding: 2px; }")
                                                  .arg(m_headerText.name(), m_headerBack.name()));
}
