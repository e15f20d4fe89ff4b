#include "books/CharacterCount.h"

int CharacterCount(const QString &text)
{
    int count = 0;
    for (qsizetype i = 0; i < text.size(); ++i)
        if (!(text[i].isLowSurrogate() && i > 0 && text[i - 1].isHighSurrogate()))
            ++count;
    return count;
}
