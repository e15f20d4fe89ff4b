#pragma once

#include <QFont>
#include <QString>

// A font from the user's "quandel"/"quick" settings: its name, size and weight keys with the
// defaults that apply when a key is absent. Bold when the weight value, upper-cased, is "BOLD".
struct QuickFontKeys
{
    QString nameKey;
    QString sizeKey;
    QString boldKey;
    QString defaultName;
    int defaultSize;
    QString defaultBold;
};

QFont QuickFont(const QuickFontKeys &keys);

// The font of input fields and grid cells ("griddetay…", default bold courier 10).
QFont CellFont();
// The font of grid headers ("gridbaslik…", default bold tahoma 10).
QFont HeaderFont();
