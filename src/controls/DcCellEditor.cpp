#include "controls/DcCellEditor.h"

#include "controls/CharacterLimit.h"
#include "controls/EntryRules.h"

#include <QApplication>
#include <QKeyEvent>

DcCellEditor::DcCellEditor(QWidget *parent)
    : QLineEdit(parent)
{
    setFrame(false);
    QPalette colours = palette();
    colours.setColor(QPalette::Base, Qt::white);
    colours.setColor(QPalette::Text, Qt::black);
    setPalette(colours);
    hide();
}

void DcCellEditor::open(const DcColumn &column, const QString &value)
{
    m_column = column;
    // The length first: the previous cell's limit must not cut the new value.
    const bool text = !column.isNumber() && !column.isDate();
    LimitCharacters(this, text ? int(column.maxValue) : 0);
    if (column.isDate())
        setMaxLength(10);
    setText(column.isDate() ? column.display(value) : value);
    if (column.isNumber()) {
        setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        setCursorPosition(0);
    } else if (column.isDate()) {
        setAlignment(Qt::AlignCenter);
        selectAll();
    } else {
        setAlignment(column.kind() == u's' ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
        if (column.kind() == u's')
            selectAll();
        else
            setCursorPosition(0);
    }
}

void DcCellEditor::keyPressEvent(QKeyEvent *event)
{
    const bool backspace = event->key() == Qt::Key_Backspace;
    const QString text = event->text();
    const bool character = backspace || (!text.isEmpty() && text.front().isPrint());
    if (character && !m_cellLock && typeCharacter(backspace ? QChar(u'\b') : text.front(), backspace))
        return;
    QLineEdit::keyPressEvent(event);
}

bool DcCellEditor::typeCharacter(QChar c, bool backspace)
{
    if (m_column.isNumber())
        return numberCharacter(c, backspace);
    if (m_column.isDate())
        return dateCharacter(c, backspace);
    return false; // the box takes it, up to the column's length
}

bool DcCellEditor::numberCharacter(QChar c, bool backspace)
{
    QString entry = text();
    if (backspace) {
        entry.chop(1);
    } else if (c.isDigit()) {
        if (EntryValue(entry + c) <= m_column.maxValue)
            entry += c;
        else
            QApplication::beep();
    } else if (c == u'.' || c == u',') {
        if (m_column.onda > 0 && !entry.contains(u'.'))
            entry += u'.';
    } else if (c == u'+') {
        entry += QStringLiteral("000");
    } else if (c != u'"') {
        QApplication::beep();
    }
    setText(entry);
    end(false);
    return true;
}

bool DcCellEditor::dateCharacter(QChar c, bool backspace)
{
    if (!backspace && !c.isDigit())
        return true;
    if (backspace) {
        const QString prepared = DateBeforeBackspace(text());
        if (prepared != text())
            setText(prepared); // the caret stays where it is otherwise
        return false;
    }
    if (hasSelectedText())
        del();
    setText(DateBeforeDigit(text()));
    end(false);
    return false;
}
