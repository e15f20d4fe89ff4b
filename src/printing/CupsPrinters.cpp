#include "printing/CupsPrinters.h"

#include <cups/cups.h>

namespace {

QString &chosenPrinter()
{
    static QString name;
    return name;
}

// Takes one queue of the spooler's into the list, the default first.
int takeQueue(void *names, unsigned, cups_dest_t *dest)
{
    auto *list = static_cast<QStringList *>(names);
    if (dest->is_default)
        list->prepend(QString::fromUtf8(dest->name));
    else
        list->append(QString::fromUtf8(dest->name));
    return 1;
}

} // namespace

QStringList InstalledPrinters()
{
    QStringList names;
    // The queues alone: type 0 under the "discovered" mask ends the enumeration before any
    // network search.
    cupsEnumDests(CUPS_DEST_FLAGS_NONE, 0, nullptr, 0, CUPS_PRINTER_DISCOVERED, takeQueue, &names);
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
