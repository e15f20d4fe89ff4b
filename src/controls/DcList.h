#pragma once

#include "controls/DcColumn.h"

#include <QStringList>
#include <QVariant>
#include <QWidget>

class DcCellEditor;
class DcListModel;
class QTableView;

// "dclist": the editable, keyboard-driven list of every list screen. It keeps its cells as
// texts and never touches the database: the screen defines the columns, fills the rows and
// answers the list's events (a row to store, a row to delete, a value to check).
// Modes: 0 without the keyboard, 1 the list has it, 2 a row is being edited cell by cell.
class DcList : public QWidget
{
    Q_OBJECT
public:
    explicit DcList(QWidget *parent = nullptr);
    ~DcList() override;

    // Columns
    QVariant Add(const QString &type, const QString &name, const QString &caption, int width, double maxValue,
        int kosul = 0, int ondaHane = 0, int binlikAyrac = 3);
    void Reset();
    QString Baslik(int col) const;
    void setBaslik(int col, const QString &caption);
    int Size(int col) const;
    // Widens a column to show its widest text whole (never narrows it).
    void widenToTexts(int col);
    // A text column shown right-aligned (and whole, as numbers are).
    void AlignRight(int col);
    QString SectionName(int col) const;
    void setSectionName(int col, const QString &name);
    double MaxValue(int col) const;
    int OndaHane(int col) const;
    int BinlikAyrac(int col) const;
    int Kosul(int col) const;
    void BaslikFont(const QString &name, int size, bool bold);
    void TextFont(const QString &name, int size, bool bold);

    // Rows and cells
    int CreateNewCaption();
    // Rows of cell texts at the end at once; answers how many the list took.
    int AddCaptionRows(std::vector<QStringList> rows);
    int ListCount() const;
    QString Caption(int row, int col) const;
    void setCaption(int row, int col, const QString &value);
    // The cells of a column from a row down, one per value, with one notice to the view.
    void setColumnCaptions(int col, int fromRow, const QStringList &values);
    QString CaptionByName(int row, const QString &name) const;
    void setCaptionByName(int row, const QString &name, const QString &value);
    // The row edit buffer: the values of the row being edited.
    QString Text(int col) const;
    void setText(int col, const QString &value);
    QString TextByName(const QString &name) const;
    void setTextByName(const QString &name, const QString &value);
    int CurSat() const { return m_current; }
    void ChngSat(int row);
    void MoveNext();
    void MovePre();
    int CurrentMode() const { return m_mode; }
    int CurrentCol() const { return m_mode == 2 ? m_column : 0; }
    void ChngMode(int mode);
    void Clear();
    void Tazele();
    void Flash();
    bool FindByName(const QString &name, const QString &text, int from = 0);
    void sorting(int col);
    bool SendExel(const QString &title, const QString &text2, const QString &text3, const QString &text4);
    void UseKeys(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    QString curtext(const QString &text, int col) const;

    // Answers to the events
    void OkUpdateData(int row = -1);
    void OperasyonDeleteReturn(bool ok, int row = -1);
    void OnKosulReturn(bool ok, const QString &text);
    void LockedReturn(bool value);
    void AlanDegisti(int alan);
    void SetTextBox(const QString &text);

    // Switches
    bool Editable() const { return m_editable; }
    void setEditable(bool on) { m_editable = on; }
    bool Sort() const { return m_sort; }
    void setSort(bool on) { m_sort = on; }
    bool OtoIncrement() const { return m_otoIncrement; }
    void setOtoIncrement(bool on) { m_otoIncrement = on; }
    bool CellLock() const { return m_cellLock; }
    void setCellLock(bool on);
    bool Zebra() const;
    void setZebra(bool on);
    bool Locked() const { return m_locked; }
    void setLocked(bool on) { m_locked = on; }
    bool BaslikVar() const;
    void setBaslikVar(bool on);
    // 0 no scroll bars, 1 vertical, 2 horizontal, 3 both.
    void setScroll(int bars);
    // Asks for room to show every column and the given number of rows (the size hint).
    void fitToColumns(int rows = 12);
    QSize sizeHint() const override;
    void setBgColor(const QColor &colour);
    void setPassiveTextColor(const QColor &text, const QColor &back);
    void setZebraTextColor(const QColor &text, const QColor &back);
    void setActiveTextColor(const QColor &text, const QColor &back);
    void setBaslikTextColor(const QColor &text, const QColor &back);

    QTableView *view() const { return m_view; }
    DcCellEditor *editor() const { return m_editor; }
    const DcListModel &model() const { return *m_model; }

signals:
    void SatirChange(int row);
    void MouseDown(int button, int column, int row);
    void AlanChanged(int column);
    void KeyDown(int key, int modifiers, int row);
    void UpdateData(int row);
    void OperasyonDelete(int row);
    void OnKosulVar(int column, const QString &name, const QString &value);
    void ChangeEditMode(bool editing);
    void isLocked(int row);
    // The list received the keyboard from outside (not back from its own editor).
    void ListFocused();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool listKey(QKeyEvent *event);
    bool editorKey(QKeyEvent *event);
    void openEditor(const QString &typed);
    void closeEditor();
    void placeEditor();
    bool checkCell();
    void leaveCell();
    void stepTo(int row);
    void dropHeldRow();
    void acceptCell(const QString &value);
    void headerClicked(int col);
    void moveTo(int row);
    int pageRows() const;
    void applyColors();
    void setCellFont(const QFont &font);
    int editRow() const { return qMax(m_current, 0); }

    QSize m_fitted; // from fitToColumns
    QTableView *m_view;
    DcListModel *m_model;
    DcCellEditor *m_editor;
    QStringList m_buffer; // the row edit buffer
    QString m_pendingTyped;
    int m_mode = 0;
    int m_current = -1;
    int m_column = 0;
    bool m_editable = true;
    bool m_sort = false;
    bool m_ascending = false;
    bool m_otoIncrement = false;
    bool m_cellLock = false;
    bool m_locked = false;
    bool m_waitingForCheck = false; // a checked value is out with the screen
    QString m_valueBeforeCheck;
    int m_heldRow = -1; // a completed row the screen has not acknowledged yet
    void tellFull();
    bool m_toldFull = false; // the user was told the list is full
    QColor m_activeText = Qt::white, m_activeBack = QColor(255, 0, 0);
    QColor m_headerText = QColor(0, 50, 0), m_headerBack = QColor(200, 255, 200);
    QColor m_background = QColor(192, 192, 192);
};
