#pragma once

#include "controls/Screen.h"

#include <array>

class XText;

// "Ayarlar" (Form2): edits the parameter set and stores it in genel.
class SettingsScreen : public Screen
{
    Q_OBJECT
public:
    explicit SettingsScreen(QWidget *parent = nullptr);

    // "Kaydet": the fields into the parameter set, the set into genel, then close.
    void save();

private:
    void fill();

    std::array<XText *, 12> m_fields {};
};
