#pragma once

#include <QString>

#include <optional>

class QWidget;

// What a printout puts into the print-settings record before the printer settings dialog
// shows it. Every printout is portrait with one copy.
struct PrintPreset
{
    QString title;
    bool titleHeading = true; // "Başlık Yazılsın"
    bool dateHeading = true; // "Tarih Yazılsın"
    bool pageNoHeading = false; // "Sayfa No Yazılsın"
    bool companyHeading = true; // "Şirket Adı Yazılsın"
    int lines = 66;
    std::optional<bool> dotMatrix; // empty: the previous printout's choice stays
};

// Presets the record, shows " Yazıcı Ayarları" and answers the print engine kind the user
// chose: Prnx::Graphic, Prnx::Raw, or 0 when the dialog was cancelled.
int ChoosePrinter(const PrintPreset &preset, QWidget *parent);
