#pragma once

#include <QString>
#include <QStringList>

// The printers the spooler knows, and the one the program prints on: the spooler's default
// until the user picks another.
QStringList InstalledPrinters();
QString CurrentPrinterName(); // empty when no printer is installed
void SetCurrentPrinterName(const QString &name);
