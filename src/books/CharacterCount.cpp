#include "books/CharacterCount.h"

int CharacterCount(const QString &text)
{
    int count = 0;
    for (qsizetype i = 0; i < text.size(); ++i)
        if (!(text[i].isLowSurrogate() && i > 0 && text[i - 1].isHighSurrogate()))
            ++count;
    return count;
}

QString FirstCharacters(const QString &text, int count)
{
    qsizetype end = 0;
    for (int taken = 0; end < text.size() && taken < count; ++taken)
        end += text[end].isHighSurrogate() && end + 1 < text.size() && text[end + 1].isLowSurrogate() ? 2 : 1;
    return text.left(end);
}
