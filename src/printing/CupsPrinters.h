#pragma once

#include <QString>
#include <QStringList>

// The printers the spooler keeps queues for (the default first), and the one the program prints
// on: the spooler's default until the user picks another. Printers that only announce themselves
// on the network are not sought: that search holds the caller for a second or more.
QStringList InstalledPrinters();
QString CurrentPrinterName(); // empty when no printer is installed
void SetCurrentPrinterName(const QString &name);
