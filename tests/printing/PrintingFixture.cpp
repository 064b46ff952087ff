#include "PrintingFixture.h"

#include <OrtinFoundation/Log.h>

using OrtinTools::Log;

MemoryPrinter::MemoryPrinter() {
    dialog.PrinterDC(::CreateCompatibleDC(nullptr));
    dialog.PrinterName(L"Drukarka główna");
    dialog.PrinterPortName(L"LPT1:");
}

PrintLogLines::PrintLogLines() {
    Log::Instance().SetSink([this](std::string_view function, int line, std::string_view text) {
        m_areWellFormed = m_areWellFormed && function == "PrintStrategy::PrintObject" && line > 0;
        m_lines += std::string(text) + '\n';
    });
}

PrintLogLines::~PrintLogLines() {
    Log::Instance().SetSink(nullptr);
}

PrintingFixture::PrintingFixture() {
    printable.pages = 3;
    printable.window = &mainWindow;
    AfxGetApp()->m_pMainWnd = &mainWindow;
}

PrintingFixture::~PrintingFixture() {
    AfxGetApp()->m_pMainWnd = nullptr;
}

void PrintingFixture::askForPages(int from, int to) {
    printer.dialog.PrintOption(PrintOptionPages);
    printer.dialog.FromPage(from);
    printer.dialog.ToPage(to);
}

SpooledPrintingFixture::SpooledPrintingFixture() {
    spooler.calls = printable.calls = &calls;
}

bool SpooledPrintingFixture::isRegistered() {
    printable.isAborted = false;
    return spooler.abortProcedure(printer.dc(), 0) != 0;
}

std::string SpooledPrintingFixture::takeStory() {
    const std::string main = mainWindowIsEnabled() ? "main enabled" : "main disabled";
    const std::string entry = isRegistered() ? "entry there" : "entry gone";
    return std::exchange(calls, {}) + " | " + main + ", " + entry;
}

HWND statusWindow() {
    HWND found = nullptr;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM result) -> BOOL {
            const bool isStatus = ::GetDlgItem(window, 201) != nullptr && ::GetDlgItem(window, 204) != nullptr;
            if (isStatus) {
                *reinterpret_cast<HWND*>(result) = window;
            }
            return isStatus ? FALSE : TRUE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

std::wstring statusText(int item) {
    wchar_t text[300] = {};
    ::GetDlgItemTextW(statusWindow(), item, text, 300);
    return text;
}

namespace PrintLogText {

std::string page(int number) {
    return "Drukowanie strony " + std::to_string(number) + "\n";
}

std::string drawn(int number) {
    return page(number) + kCall;
}

std::string failedEnd(int error) {
    return "Nast\xB9pi\xB3 b\xB3\xB9"
           "d drukowania i zosta\xB3o ono przerwane\nGetLastError() == " +
           std::to_string(error) + "\n";
}

} // namespace PrintLogText

std::string PrintStory::printed(int page) {
    const std::string number = std::to_string(page);
    return " prepare:" + number + " StartPage prepare:" + number + " print:" + number + " EndPage";
}
