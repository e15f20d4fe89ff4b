#pragma once

#include <QString>

// The characters of a text as its reader (and the engine's length()) counts them: a character
// outside the basic plane (an emoji) is two UTF-16 units and counts once.
int CharacterCount(const QString &text);
// The first `count` characters of a text, never half of one.
QString FirstCharacters(const QString &text, int count);
