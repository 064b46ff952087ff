#include "JobCheck.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>

#include <winspool.h>

#include "PrintLog.h"

namespace {

struct FreeMemory {
    void operator()(void* memory) const { std::free(memory); }
};
using JobRecord = std::unique_ptr<JOB_INFO_1W, FreeMemory>;

} // namespace

bool isJobRestarting(const wchar_t* printerName, int job) {
    // The handle stays open on purpose: this system never calls ClosePrinter, and each failed page costs one handle.
    HANDLE printer = nullptr;
    if (!::OpenPrinterW(const_cast<wchar_t*>(printerName), &printer, nullptr)) {
        logPrinting(std::wstring(L"Nie można użyć wybranej drukarki: ") + printerName);
        return false;
    }
    const auto jobNumber = static_cast<DWORD>(job);
    DWORD needed = 0;
    if (!::GetJobW(printer, jobNumber, 1, nullptr, 0, &needed) && ::GetLastError() != ERROR_INSUFFICIENT_BUFFER) {
        return false;
    }
    needed = std::max<DWORD>(needed, sizeof(JOB_INFO_1W));
    const JobRecord record(static_cast<JOB_INFO_1W*>(std::malloc(needed)));
    if (record == nullptr) {
        logPrinting(L"Brak informacji o utworzonym zadaniu drukowania.");
        return false;
    }
    record->Status = 0; // a job that is gone by now fills nothing in
    const BOOL isThere = ::GetJobW(printer, jobNumber, 1, reinterpret_cast<BYTE*>(record.get()), needed, &needed);
    const DWORD status = record->Status;
    if (!isThere || (status & JOB_STATUS_RESTART) == 0) {
        logPrinting(L"Status zadania drukowania == " + std::to_wstring(static_cast<int>(status)));
        return false;
    }
    return true;
}
