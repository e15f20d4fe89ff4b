#include "printing/CupsPrinters.h"

#include <cups/cups.h>

namespace {

QString &chosenPrinter()
{
    static QString name;
    return name;
}

} // namespace

QStringList InstalledPrinters()
{
    cups_dest_t *dests = nullptr;
    const int count = cupsGetDests2(CUPS_HTTP_DEFAULT, &dests);
    QStringList names;
    QString defaultName;
    for (int i = 0; i < count; ++i) {
        const QString name = QString::fromUtf8(dests[i].name);
        if (dests[i].is_default)
            defaultName = name;
        else
            names << name;
    }
    cupsFreeDests(count, dests);
    if (!defaultName.isEmpty())
        names.prepend(defaultName); // the default first
    return names;
}

QString CurrentPrinterName()
{
    const QStringList installed = InstalledPrinters();
    if (!chosenPrinter().isEmpty() && installed.contains(chosenPrinter()))
        return chosenPrinter();
    return installed.value(0);
}

void SetCurrentPrinterName(const QString &name)
{
    chosenPrinter() = name;
}
