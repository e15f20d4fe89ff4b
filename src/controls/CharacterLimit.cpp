#include "controls/CharacterLimit.h"

#include "books/CharacterCount.h"

#include <QLineEdit>

CharacterLimit::CharacterLimit(int characters, QObject *parent)
    : QValidator(parent)
    , m_characters(characters)
{
}

QValidator::State CharacterLimit::validate(QString &input, int &) const
{
    return CharacterCount(input) <= m_characters ? Acceptable : Invalid;
}

void LimitCharacters(QLineEdit *edit, int characters)
{
    const QValidator *previous = edit->validator();
    edit->setMaxLength(32767);
    edit->setValidator(characters > 0 ? new CharacterLimit(characters, edit) : nullptr);
    delete previous;
}
