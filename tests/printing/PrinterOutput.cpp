#include "PrinterOutput.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

#include <OrtinFoundation/StringTools.h>

#include "support/Pump.h"

PrinterOutput::PrinterOutput() {
    wchar_t folder[MAX_PATH] = {};
    if (::GetEnvironmentVariableW(L"ORTIN_PRINTED", folder, MAX_PATH) == 0) {
        throw std::runtime_error("there is no printer: start the program with scripts/printer.sh");
    }
    m_folder = std::wstring(L"Z:") + folder; // the drive of the build machine's root
}

HDC PrinterOutput::makeContext() {
    const HDC context = ::CreateDCW(L"WINSPOOL", kPrinter, nullptr, nullptr);
    if (context == nullptr) {
        throw std::runtime_error("the printer gives no device context");
    }
    return context;
}

void PrinterOutput::choose(PrintDialogContext& dialog) {
    dialog.PrinterDC(makeContext());
    dialog.PrinterName(kPrinter);
    dialog.PrinterPortName(L"CUPS:PDF");
}

std::vector<std::wstring> PrinterOutput::pagesOf(const std::wstring& title, std::chrono::seconds limit) const {
    if (!support::pumpUntil([&] { return has(title); }, limit)) {
        throw std::runtime_error("the document was not printed");
    }
    std::ifstream file(textOf(title), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    std::vector<std::wstring> pages;
    for (std::size_t begin = 0, end = 0; (end = bytes.find('\f', begin)) != std::string::npos; begin = end + 1) {
        pages.push_back(OrtinTools::String::Utf8ToWide(bytes.substr(begin, end - begin)));
    }
    return pages;
}

bool PrinterOutput::has(const std::wstring& title) const {
    return std::filesystem::exists(textOf(title));
}

std::wstring PrinterOutput::newTitle(const std::wstring& name) {
    static int count = 0;
    return name + L" " + std::to_wstring(::GetCurrentProcessId()) + L"-" + std::to_wstring(::GetTickCount64()) + L"-" +
           std::to_wstring(++count);
}
