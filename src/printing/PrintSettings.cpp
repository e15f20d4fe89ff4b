#include "printing/PrintSettings.h"

PrintSettings &printSettings()
{
    static PrintSettings record;
    return record;
}

void ResetPrintSettings()
{
    printSettings() = PrintSettings();
}
