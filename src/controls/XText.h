#pragma once

#include "money/Currency.h"

#include <QColor>
#include <QFrame>
#include <QIcon>
#include <QMap>
#include <QVariant>

class QLineEdit;
class QToolButton;

// "xtext": the one-line field every screen is built from. Free text, number, date or counter;
// it checks every keystroke itself, shows numbers grouped with fixed decimals, completes dates,
// moves on with Enter/Down and back with Up, and tells its screen about edits, keys and its
// picture button through Change, KeyDown and ButtonClick.
class XText : public QFrame
{
    Q_OBJECT
public:
    enum Format { TextFormat = 0, NumberFormat = 1, DateFormat = 2, CounterFormat = 3 };

    explicit XText(QWidget *parent = nullptr);

    // Focus colours, then the normal ones (applied at once).
    void Colors(const QColor &focusBack, const QColor &focusFore, const QColor &back, const QColor &fore);
    // Tip 1 number (maxLen is the largest value), 2 date, anything else text (maxLen characters).
    void xTextBicim(int tip, double maxLen, Qt::Alignment alignment, bool autoSelect, int onda, int grup);
    // The stored design of a field (keys "max", "xtexttip", "xtextonda", "xtextgrup",
    // "xtextautoselect", "xtextpwd", "xbutton", "xFirstSetFocus"); absent keys take their defaults.
    void loadDesign(const QMap<QString, QString> &design);

    QString Text() const;
    void setText(const QString &text);
    // Number and counter: the stored number. Date: the day number of a valid date, else 0.
    // Text: an empty value.
    QVariant Value() const;
    void setValue(const QVariant &value);
    // A number field's entry as an exact amount (what was typed, not rounded).
    Currency amount() const;

    double MaxLenght() const { return m_maxLenght; }
    void setMaxLenght(double maximum) { m_maxLenght = maximum; }
    int TextTip() const { return m_format; }
    void setTextTip(int format);
    int Onda() const { return m_onda; }
    void setOnda(int decimals);
    int grup() const { return m_grup; }
    void setGrup(int groupSize) { m_grup = groupSize; }
    bool AutoSelect() const { return m_autoSelect; }
    void setAutoSelect(bool on) { m_autoSelect = on; }
    QString PassWordChar() const { return m_passwordChar; }
    void setPassWordChar(const QString &mask);
    bool Locked() const { return m_locked; }
    void setLocked(bool locked);
    bool Button() const { return m_button; }
    void setButton(bool shown);
    QIcon Picture() const;
    void setPicture(const QIcon &picture);
    QString ToolText() const;
    void setToolText(const QString &text);

    // The text box inside, for the accessibility name and for tests.
    QLineEdit *textBox() const { return m_edit; }

signals:
    void Change();
    // Every key the field does not use itself; a handler that sets key to 0 takes the key.
    void KeyDown(int &key, Qt::KeyboardModifiers &modifiers);
    void ButtonClick();
    // The field lost the focus (after re-showing its value).
    void Left();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool keyPress(QKeyEvent *event);
    bool character(QKeyEvent *event);
    void numberCharacter(QChar c, bool backspace);
    bool dateCharacter(QChar c, bool backspace);
    void counterCharacter(QChar c);
    void moveFocus(bool forward);
    void clearEntry();
    void changed();
    void focusIn();
    void focusOut();
    void showNumber();
    void setTextAtEnd(const QString &text);
    void updateDateTip();
    void applyColors(bool focused);
    void applyLocks();

    QLineEdit *m_edit;
    QToolButton *m_pictureButton;
    Format m_format = TextFormat;
    QVariant m_value = 0;
    double m_maxLenght = 0;
    int m_onda = 0;
    int m_grup = 3;
    bool m_autoSelect = false;
    QString m_passwordChar;
    bool m_locked = false;
    bool m_button = false;
    QString m_buffer; // a number field's entry
    bool m_fresh = false; // the next key starts a new entry
    bool m_point = false; // the entry has its decimal point
    QColor m_focusBack, m_focusFore, m_back, m_fore;
};
