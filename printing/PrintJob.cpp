#include "PrintJob.h"

#include <cstdint>
#include <utility>

#include "JobCheck.h"
#include "PageRange.h"
#include "PrintLog.h"

namespace {

// The items of the status window.
constexpr int kTitleItem = 201;
constexpr int kPrinterItem = 202;
constexpr int kPortItem = 203;
constexpr int kPageItem = 204;
constexpr int kLongestPageText = 79; // characters

HWND mainWindowOfThread() {
    CWinThread* const thread = AfxGetThread();
    CWnd* const window = thread != nullptr ? thread->GetMainWnd() : nullptr;
    return window != nullptr ? window->m_hWnd : nullptr;
}

} // namespace

PrintStrategy::Job::Job(std::shared_ptr<PrintInfoEx> info, IPrintable& printable)
    : m_info(std::move(info)),
      m_printable(printable),
      m_printer(m_info->PrinterDC()),
      m_title(printable.PrintTitle()),
      m_port(m_info->PrinterPortName()) {}

void PrintStrategy::Job::run() {
    prepare();
    logPrinting(L"Dezaktywacja okna głównego");
    m_mainWindow = mainWindowOfThread();
    enableMainWindow(false);
    logPrinting(L"Inicjalizacja okna stanu drukowania");
    showStatusWindow();
    logPrinting(L"Rozpoczęcie drukowania");
    if (!startDocument()) {
        refuse();
        return;
    }
    if (printPages()) {
        endDocument();
    } else {
        abortDocument();
    }
    finish();
}

void PrintStrategy::Job::prepare() {
    logPrinting(L"Konfiguracja kontekstu drukowania");
    m_dc.emplace(m_printer);
    m_printable.OnBeginPrinting(&*m_dc, m_info.get());
    m_dc->SetAbortProc(&AbortPrintProcess);
}

// No scope enables the window again: after an exception of the printable it stays disabled, which is meant.
void PrintStrategy::Job::enableMainWindow(bool enable) {
    if (m_mainWindow != nullptr) {
        ::EnableWindow(m_mainWindow, enable);
    }
}

void PrintStrategy::Job::showStatusWindow() {
    m_status.emplace(m_printable.AssociatedWindow());
    m_status->SetDlgItemText(kTitleItem, m_title.c_str());
    m_status->SetDlgItemText(kPrinterItem, m_info->PrinterDeviceName());
    m_status->SetDlgItemText(kPortItem, m_port);
    m_status->ShowWindow(SW_SHOW);
    m_status->UpdateWindow();
}

bool PrintStrategy::Job::startDocument() {
    DOCINFOW document{};
    static_assert(sizeof document == 40);
    document.cbSize = sizeof document;
    document.lpszDocName = m_title.c_str();
    m_jobNumber = m_dc->StartDoc(&document);
    return m_jobNumber != SP_ERROR;
}

// The printable stays registered here, which is meant: a later job on the same context takes the entry over.
void PrintStrategy::Job::refuse() {
    enableMainWindow(true);
    m_printable.OnEndPrinting(&*m_dc, m_info.get());
    m_status->DestroyWindow();
    m_dc->Detach();
    AfxMessageBox(AFX_IDP_FAILED_TO_START_PRINT, 0, static_cast<UINT>(-1));
}

bool PrintStrategy::Job::printPages() {
    const PageRange pages{m_info->FirstPageToPrintIndex(), m_info->LastPageToPrintIndex()};
    m_pageFormat.LoadString(AFX_IDS_PRINTPAGENUM);
    m_info->ContinuePrinting(true);
    if (!m_info->IsAnythingToPrint()) {
        logPrinting(L"Nie ma niczego do drukowania (m_pagesCount == 0)");
        return true;
    }
    const std::int64_t end = std::int64_t{pages.last} + pages.step();
    for (std::int64_t page = pages.first; page != end; page += pages.step()) {
        const PageEnd pageEnd = printPage(static_cast<int>(page));
        if (pageEnd != PageEnd::Sent) {
            return pageEnd == PageEnd::LastOne;
        }
    }
    return true;
}

PrintStrategy::Job::PageEnd PrintStrategy::Job::printPage(int page) {
    logPrinting(L"Drukowanie strony " + std::to_wstring(page));
    m_info->SetCurrentPage(page);
    m_printable.OnPrepareDC(&*m_dc, m_info.get());
    if (!m_info->ContinuePrinting()) {
        logPrinting(L"Koniec drukowania");
        return PageEnd::LastOne;
    }
    showPageNumber();
    if (m_dc->StartPage() < 0) {
        logPrinting(L"dcPrint.StartPage() < 0");
        return PageEnd::Failed;
    }
    // Once more, because the start of a page resets the context.
    m_printable.OnPrepareDC(&*m_dc, m_info.get());
    logPrinting(L"Wywołanie OnPrint okna");
    m_printable.OnPrint(&*m_dc, m_info.get());
    if (m_dc->EndPage() < 0 && !wasPageForgiven()) {
        return PageEnd::Failed;
    }
    if (isCancelled()) {
        logPrinting(L"Zadanie drukowania zostało przerwane");
        return PageEnd::Failed;
    }
    return PageEnd::Sent;
}

void PrintStrategy::Job::showPageNumber() {
    CString text;
    text.Format(m_pageFormat, m_info->CurrentPage());
    m_status->SetDlgItemText(kPageItem, text.Left(kLongestPageText));
}

/// A failure without an error code counts as success.
bool PrintStrategy::Job::wasPageForgiven() const {
    return ::GetLastError() == ERROR_SUCCESS || isJobRestarting(m_info->PrinterDeviceName(), m_jobNumber);
}

bool PrintStrategy::Job::isCancelled() const {
    return _XTPAbortProc(m_printer, 0) == 0 || IsRegistered(m_printer) == nullptr || m_printable.IsPrintAborted();
}

void PrintStrategy::Job::abortDocument() {
    logPrinting(L"Nastąpił błąd drukowania i zostało ono przerwane");
    logPrinting(L"GetLastError() == " + std::to_wstring(static_cast<int>(::GetLastError())));
    m_dc->AbortDoc();
}

void PrintStrategy::Job::endDocument() {
    logPrinting(L"Wszystkie dane zostały przesłane do drukarki, zamykamy dokument.");
    m_dc->EndDoc();
}

void PrintStrategy::Job::finish() {
    enableMainWindow(true);
    UnregisterPrintable(m_printer);
    m_printable.OnEndPrinting(&*m_dc, m_info.get());
    m_status->DestroyWindow();
    m_dc->Detach();
}
