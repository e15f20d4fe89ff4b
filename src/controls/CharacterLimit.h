#pragma once

#include <QValidator>

class QLineEdit;

// Keeps a line edit to a number of characters as the books count them (CharacterCount), where
// the line edit's own limit counts UTF-16 units and would cut an emoji in two: an edit that
// would pass the limit is refused whole. 0 or less: no limit.
class CharacterLimit : public QValidator
{
    Q_OBJECT
public:
    CharacterLimit(int characters, QObject *parent);
    State validate(QString &input, int &position) const override;

private:
    int m_characters;
};

// Puts the limit on the line edit (replacing its validator), or none for 0 or less.
void LimitCharacters(QLineEdit *edit, int characters);
