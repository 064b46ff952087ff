#include <OrtinControls/PrintStrategy.h>

#include <utility>

#include <XTToolkitPro.h>

#include "PrintJob.h"
#include "PrintLog.h"

PrintStrategy::PrintStrategy() = default;
PrintStrategy::PrintStrategy(const PrintStrategy&) = default;
PrintStrategy& PrintStrategy::operator=(const PrintStrategy&) = default;
PrintStrategy::~PrintStrategy() = default;

void PrintStrategy::PrintObject(std::shared_ptr<PrintInfoEx> info, IPrintable* printable) {
    logPrinting(L"Początkowa konfiguracja drukowania");
    RegisterPrintable(info->PrinterDC(), printable);
    Job(std::move(info), *printable).run();
}

int CALLBACK PrintStrategy::AbortPrintProcess(HDC dc, int code) {
    if (_XTPAbortProc(dc, code) == 0) {
        return 0;
    }
    const IPrintable* const printable = IsRegistered(dc);
    return printable != nullptr && !printable->IsPrintAborted() ? 1 : 0;
}

void PrintStrategy::RegisterPrintable(HDC dc, IPrintable* printable) {
    const std::lock_guard lock(PrintStrategyCurrentPrints);
    Sm_currentPrints.insert_or_assign(dc, printable);
}

void PrintStrategy::UnregisterPrintable(HDC dc) {
    const std::lock_guard lock(PrintStrategyCurrentPrints);
    Sm_currentPrints.erase(dc);
}

IPrintable* PrintStrategy::IsRegistered(HDC dc) {
    const std::lock_guard lock(PrintStrategyCurrentPrints);
    const auto entry = Sm_currentPrints.find(dc);
    return entry != Sm_currentPrints.end() ? entry->second : nullptr;
}
