#pragma once

#include <QString>

#include <memory>

class RawChannel;

// The program's one raw printer channel ("dosprint"): a raw job on the current printer, titled
// with the print-settings record's title.
bool OpenDosPrinter();
void DosPrint(const QByteArray &bytes);
void DosNewPage();
void DosEndPage();
void CloseDosPrinter();
// The result of the last spooler call.
bool DosLastResult();
// The printer of the present (or last) job, and why its first failed call failed ("" when none
// did).
QString DosPrinterName();
QString DosFailure();

// Replaces the spooler channel (tests record what would be printed); nullptr restores it.
void SetRawChannel(std::unique_ptr<RawChannel> channel);
