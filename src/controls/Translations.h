#pragma once

// Makes Qt's own texts Turkish (standard buttons, dialogs, context menus) with Qt's Turkish
// translations. False when they are not installed: Qt's English texts stay.
bool LoadQtTranslations();
