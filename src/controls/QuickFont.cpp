#include "controls/QuickFont.h"

#include <QSettings>

QFont QuickFont(const QuickFontKeys &keys)
{
    QSettings settings(QSettings::UserScope, QStringLiteral("quandel"));
    settings.beginGroup(QStringLiteral("quick"));
    QFont font(settings.value(keys.nameKey, keys.defaultName).toString());
    bool ok = false;
    const double size = settings.value(keys.sizeKey, keys.defaultSize).toDouble(&ok);
    font.setPointSizeF(ok && size > 0 ? size : keys.defaultSize);
    font.setBold(settings.value(keys.boldKey, keys.defaultBold).toString().toUpper() == u"BOLD");
    font.setStyleHint(QFont::TypeWriter);
    return font;
}

QFont CellFont()
{
    return QuickFont({ QStringLiteral("griddetayfontname"), QStringLiteral("griddetayfontsize"),
        QStringLiteral("griddetayfontbold"), QStringLiteral("courier"), 10, QStringLiteral("Bold") });
}

QFont HeaderFont()
{
    return QuickFont({ QStringLiteral("gridbaslikfontname"), QStringLiteral("gridbaslikfontsize"),
        QStringLiteral("gridbaslikfontbold"), QStringLiteral("tahoma"), 10, QStringLiteral("Bold") });
}
