#pragma once

#include <QString>

// The print-settings record: each printing screen presets it, " Yazıcı Ayarları" edits it, and
// the print engine reads the title and the lines per page from it. Memory only.
struct PrintSettings
{
    // Where graphic output goes: the current printer, a PDF file, or a preview first.
    enum class GraphicTarget { Printer, PdfFile, Preview };

    QString title;
    bool titleHeading = false; // "Başlık Yazılsın"
    bool dateHeading = false; // "Tarih Yazılsın"
    bool pageNoHeading = false; // "Sayfa No Yazılsın"
    bool companyHeading = false; // "Şirket Adı Yazılsın"
    int orientation = 1; // 1 portrait, 2 landscape
    int lines = 66; // lines per page
    int copies = 1;
    bool confirmed = false;
    bool dotMatrix = false; // raw text output rather than graphic
    GraphicTarget target = GraphicTarget::Printer;
    QString pdfFile; // with GraphicTarget::PdfFile
};

PrintSettings &printSettings();
void ResetPrintSettings();
