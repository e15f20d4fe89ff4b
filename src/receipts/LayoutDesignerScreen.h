#pragma once

#include "controls/Screen.h"

#include <array>

class QComboBox;
class QListWidget;
class XText;

// "Serbest Meslek Makbuz Dizaynı": places the receipt's items on the pre-printed form, one
// duzen row per placed item (line, column, width and a free text).
class LayoutDesignerScreen : public Screen
{
    Q_OBJECT
public:
    explicit LayoutDesignerScreen(QWidget *parent = nullptr);
    ~LayoutDesignerScreen() override;

    // "Ekle": changes the row of the number in field 0, or adds a new one.
    void addOrChange();
    // "Sil": deletes the row of the number in field 0 after asking.
    void remove();

private:
    void refresh();
    void clearRow();
    void showRow();
    bool seekRow();
    void afterChange();

    std::array<XText *, 5> m_fields {};
    QComboBox *m_items;
    QListWidget *m_rows;
};
