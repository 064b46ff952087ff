#pragma once

#include <functional>
#include <optional>
#include <string>

#include <windows.h>
#include <winspool.h>

#include "support/ImportPatch.h"

/// What the library gets from the printing calls for the length of a scope, in place of a spooler: all goes well,
/// unless a test says otherwise. One at a time.
class FakeSpooler {
public:
    FakeSpooler();
    ~FakeSpooler();
    FakeSpooler(const FakeSpooler&) = delete;
    FakeSpooler& operator=(const FakeSpooler&) = delete;

    int startDocResult = 77;
    /// Called with the number of the page that starts or ends, counted from 1 in each job; give the call's result.
    std::function<int(int)> onStartPage = [](int) { return 1; };
    std::function<int(int)> onEndPage = [](int) { return 1; };
    /// What GetLastError answers to the library; nothing stands for the system's own answer.
    std::optional<DWORD> lastError = 0;
    bool printerOpens = true;
    std::size_t openedPrinters = 0; ///< each has a handle of its own
    /// Of the first GetJobW, which asks for the size, and of the second.
    BOOL sizeResult = FALSE;
    DWORD sizeError = ERROR_INSUFFICIENT_BUFFER;
    DWORD size = sizeof(JOB_INFO_1W) + 100; ///< texts follow the record
    BOOL jobResult = TRUE;
    DWORD jobStatus = 0;
    bool recordIsFilled = true; ///< whatever the result
    bool mallocFails = false;
    /// Where the calls go: "StartDoc(Notowania) StartPage EndPage OpenPrinter(Drukarka) GetJob(77,1) EndDoc".
    std::string* calls = &m_calls;

    /// The procedure that the last job has set, and what it was set for.
    ABORTPROC abortProcedure = nullptr;
    HDC abortContext = nullptr;
    DOCINFOW document{};
    /// The text and the style of the last message box, which is answered at once.
    std::wstring messageText;
    UINT messageStyle = 0;
    std::function<void()> onMessageBox;

private:
    struct Calls;

    HANDLE lastPrinter() const { return reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(0x1000 + openedPrinters)); }
    void write(const std::string& call) { *calls += (calls->empty() ? "" : " ") + call; }

    static FakeSpooler* S_current;

    int m_page = 0;
    std::string m_calls;
    HMODULE m_library = ::GetModuleHandleW(L"OrtinControls.dll");
    support::ImportPatch m_startDoc;
    support::ImportPatch m_startPage;
    support::ImportPatch m_endPage;
    support::ImportPatch m_endDoc;
    support::ImportPatch m_abortDoc;
    support::ImportPatch m_setAbortProc;
    support::ImportPatch m_openPrinter;
    support::ImportPatch m_getJob;
    support::ImportPatch m_malloc;
    support::ImportPatch m_getLastError;
    support::ImportPatch m_messageBox;
};
