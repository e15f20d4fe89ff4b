#include "printing/DosPrint.h"

#include "printing/CupsPrinters.h"
#include "printing/CupsRawChannel.h"
#include "printing/PrintSettings.h"

namespace {

struct Channel
{
    std::unique_ptr<RawChannel> channel = std::make_unique<CupsRawChannel>();
    bool lastResult = false;
    QString printer;
    QString failure;

    // Keeps a call's result, and the first failure of the job.
    bool take(bool result)
    {
        lastResult = result;
        if (!result && failure.isEmpty())
            failure = channel->failure();
        return result;
    }
};

Channel &module()
{
    static Channel state;
    return state;
}

} // namespace

bool OpenDosPrinter()
{
    Channel &state = module();
    state.printer = CurrentPrinterName();
    state.failure.clear();
    return state.take(state.channel->open(state.printer, printSettings().title));
}

void DosPrint(const QByteArray &bytes)
{
    module().take(module().channel->write(bytes));
}

void DosNewPage()
{
    module().take(module().channel->newPage());
}

void DosEndPage()
{
    module().take(module().channel->endPage());
}

void CloseDosPrinter()
{
    module().take(module().channel->close());
}

bool DosLastResult()
{
    return module().lastResult;
}

QString DosPrinterName()
{
    return module().printer;
}

QString DosFailure()
{
    return module().failure;
}

void SetRawChannel(std::unique_ptr<RawChannel> channel)
{
    module().channel = channel ? std::move(channel) : std::make_unique<CupsRawChannel>();
}
