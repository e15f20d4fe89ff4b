#pragma once

#include "controls/DcColumn.h"

#include <QLineEdit>

// The in-cell editor of a grid list: takes the characters a column kind allows, builds number
// entries itself and puts the dots of a date in place.
class DcCellEditor : public QLineEdit
{
    Q_OBJECT
public:
    explicit DcCellEditor(QWidget *parent = nullptr);

    // Prepares the editor for a cell of this column holding value.
    void open(const DcColumn &column, const QString &value);
    // While locked, characters are not put through the column's rules.
    void setCellLock(bool locked) { m_cellLock = locked; }
    // Handles a typed character (or Backspace); true when it was used up.
    bool typeCharacter(QChar c, bool backspace);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool numberCharacter(QChar c, bool backspace);
    bool dateCharacter(QChar c, bool backspace);

    DcColumn m_column;
    bool m_cellLock = false;
};
