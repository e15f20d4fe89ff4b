#include "printing/DosPrint.h"

#include "printing/CupsPrinters.h"
#include "printing/CupsRawChannel.h"
#include "printing/PrintSettings.h"

namespace {

struct Channel
{
    std::unique_ptr<RawChannel> channel = std::make_unique<CupsRawChannel>();
    bool lastResult = false;
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
    state.lastResult = state.channel->open(CurrentPrinterName(), printSettings().title);
    return state.lastResult;
}

void DosPrint(const QByteArray &bytes)
{
    module().lastResult = module().channel->write(bytes);
}

void DosNewPage()
{
    module().lastResult = module().channel->newPage();
}

void DosEndPage()
{
    module().lastResult = module().channel->endPage();
}

void CloseDosPrinter()
{
    module().lastResult = module().channel->close();
}

bool DosLastResult()
{
    return module().lastResult;
}

void SetRawChannel(std::unique_ptr<RawChannel> channel)
{
    module().channel = channel ? std::move(channel) : std::make_unique<CupsRawChannel>();
}
