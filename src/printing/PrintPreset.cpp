#include "printing/PrintPreset.h"

#include "printing/PrintSettings.h"
#include "printing/PrinterSetupDialog.h"
#include "printing/Prnx.h"

int ChoosePrinter(const PrintPreset &preset, QWidget *parent)
{
    PrintSettings &record = printSettings();
    record.title = preset.title;
    record.titleHeading = preset.titleHeading;
    record.dateHeading = preset.dateHeading;
    record.pageNoHeading = preset.pageNoHeading;
    record.companyHeading = preset.companyHeading;
    record.orientation = 1;
    record.copies = 1;
    record.lines = preset.lines;
    if (preset.dotMatrix)
        record.dotMatrix = *preset.dotMatrix;
    if (!ShowPrinterSetup(parent))
        return 0;
    return record.dotMatrix ? Prnx::Raw : Prnx::Graphic;
}
