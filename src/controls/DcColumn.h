#pragma once

#include <QChar>
#include <QString>

// One column of a grid list: its kind (type letter), field name, caption, width and the rules
// the editor applies to it.
struct DcColumn
{
    QChar type = u'a';
    QString name; // upper-cased
    QString caption;
    int width = 0;
    double maxValue = 0; // numbers: the largest value; texts and dates: the most characters
    int kosul = 0; // condition code 0-6
    int onda = 0; // decimals of a number column
    int grup = 3; // digit groups of a number column
    bool right = false; // a text shown right-aligned, such as a balance with its side

    QChar kind() const { return type.toLower(); }
    bool isNumber() const { return kind() == u'n' || kind() == u'b'; }
    bool isDate() const { return kind() == u't'; }
    // Numbers and right-aligned texts: shown whole, never cut.
    bool isFigure() const { return isNumber() || right; }
    // Columns the editor passes over: filled by the screen.
    bool skipped() const { return kind() == u'm' || kind() == u'b'; }
    // A stored value as the column shows it.
    QString display(const QString &value) const;
    Qt::Alignment alignment() const;
};

// The type letters a column may have.
bool IsColumnType(QChar letter);
