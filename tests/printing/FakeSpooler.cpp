#include "FakeSpooler.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include <OrtinFoundation/StringTools.h>

using OrtinTools::String::WideToUtf8;

FakeSpooler* FakeSpooler::S_current = nullptr;

struct FakeSpooler::Calls {
    static int WINAPI startDoc(HDC, const DOCINFOW* document) {
        S_current->m_page = 0;
        S_current->document = *document;
        S_current->write("StartDoc(" + WideToUtf8(document->lpszDocName) + ")");
        return S_current->startDocResult;
    }
    static int WINAPI startPage(HDC) {
        S_current->write("StartPage");
        return S_current->onStartPage(++S_current->m_page);
    }
    static int WINAPI endPage(HDC) {
        S_current->write("EndPage");
        return S_current->onEndPage(S_current->m_page);
    }
    static int WINAPI endDoc(HDC) {
        S_current->write("EndDoc");
        return 1;
    }
    static int WINAPI abortDoc(HDC) {
        S_current->write("AbortDoc");
        return 1;
    }
    static int WINAPI setAbortProc(HDC dc, ABORTPROC procedure) {
        S_current->write("SetAbortProc");
        S_current->abortContext = dc;
        S_current->abortProcedure = procedure;
        return 1;
    }
    static BOOL WINAPI openPrinter(LPWSTR name, HANDLE* printer, PRINTER_DEFAULTSW* defaults) {
        S_current->write("OpenPrinter(" + WideToUtf8(name) + (defaults != nullptr ? ",defaults)" : ")"));
        if (!S_current->printerOpens) {
            return FALSE;
        }
        ++S_current->openedPrinters;
        *printer = S_current->lastPrinter();
        return TRUE;
    }
    static BOOL WINAPI getJob(HANDLE printer, DWORD job, DWORD level, BYTE* record, DWORD size, DWORD* needed) {
        S_current->write("GetJob(" + std::to_string(job) + "," + std::to_string(level) +
                         (printer == S_current->lastPrinter() ? ")" : ",a strange printer)"));
        *needed = S_current->size;
        if (record == nullptr) {
            S_current->lastError = S_current->sizeError;
            return S_current->sizeResult;
        }
        if (S_current->recordIsFilled && size >= std::max<DWORD>(S_current->size, sizeof(JOB_INFO_1W))) {
            JOB_INFO_1W filled{};
            filled.Status = S_current->jobStatus;
            std::memcpy(record, &filled, sizeof filled);
        }
        return S_current->jobResult;
    }
    static void* allocate(std::size_t size) {
        return S_current->mallocFails ? nullptr : S_current->m_malloc.original<void*(std::size_t)>()(size);
    }
    static DWORD WINAPI lastError() {
        return S_current->lastError ? *S_current->lastError : S_current->m_getLastError.original<DWORD WINAPI()>()();
    }
    static int WINAPI messageBox(HWND, const wchar_t* text, const wchar_t*, UINT style) {
        S_current->write("MessageBox");
        S_current->messageText = text;
        S_current->messageStyle = style;
        if (S_current->onMessageBox) {
            S_current->onMessageBox();
        }
        return IDOK;
    }
};

FakeSpooler::FakeSpooler()
    : m_startDoc(m_library, "gdi32.dll", "StartDocW", Calls::startDoc),
      m_startPage(m_library, "gdi32.dll", "StartPage", Calls::startPage),
      m_endPage(m_library, "gdi32.dll", "EndPage", Calls::endPage),
      m_endDoc(m_library, "gdi32.dll", "EndDoc", Calls::endDoc),
      m_abortDoc(m_library, "gdi32.dll", "AbortDoc", Calls::abortDoc),
      m_setAbortProc(m_library, "gdi32.dll", "SetAbortProc", Calls::setAbortProc),
      m_openPrinter(m_library, "winspool.drv", "OpenPrinterW", Calls::openPrinter),
      m_getJob(m_library, "winspool.drv", "GetJobW", Calls::getJob),
      m_malloc(m_library, "msvcrt.dll", "malloc", Calls::allocate),
      m_getLastError(m_library, "kernel32.dll", "GetLastError", Calls::lastError),
      m_messageBox(::GetModuleHandleW(L"OrtinMfc.dll"), "user32.dll", "MessageBoxW", Calls::messageBox) {
    S_current = this;
}

FakeSpooler::~FakeSpooler() {
    S_current = nullptr;
}
