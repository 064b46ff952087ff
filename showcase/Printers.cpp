#include "Printers.h"

#include <algorithm>

#include <winspool.h>

namespace Desk {

namespace {

constexpr wchar_t Driver[] = L"WINSPOOL";

std::wstring defaultPrinterName() {
    DWORD length = 0;
    ::GetDefaultPrinterW(nullptr, &length);
    std::wstring name(length, L'\0');
    if (length == 0 || !::GetDefaultPrinterW(name.data(), &length))
        return {};
    name.resize(length - 1);
    return name;
}

std::wstring textOf(const wchar_t* text) {
    return text ? text : L"";
}

bool take(PrintDialogContext& context, const Printer& printer, HDC device) {
    if (!device)
        return false;
    context.PrinterDC(device);
    context.PrinterName(printer.name.c_str());
    context.PrinterPortName(printer.port.c_str());
    return true;
}

/// In dots to the inch, the coarsest first.
std::vector<CSize> resolutionsOf(const Printer& printer) {
    const auto ask = [&](LONG* answer) {
        return ::DeviceCapabilitiesW(printer.name.c_str(), printer.port.c_str(), DC_ENUMRESOLUTIONS,
                                     reinterpret_cast<LPWSTR>(answer), nullptr);
    };
    const int count = ask(nullptr);
    std::vector<LONG> pairs(2 * static_cast<std::size_t>(std::max(count, 0)));
    if (pairs.empty() || ask(pairs.data()) != count)
        return {};
    std::vector<CSize> resolutions;
    for (std::size_t pair = 0; pair < pairs.size(); pair += 2)
        resolutions.emplace_back(pairs[pair], pairs[pair + 1]);
    std::sort(resolutions.begin(), resolutions.end(), [](CSize a, CSize b) { return a.cx < b.cx; });
    return resolutions;
}

/// The printer with its usual settings but for the resolution; null if it gives none.
HDC deviceOf(const Printer& printer, CSize resolution) {
    std::wstring name = printer.name;
    HANDLE handle = nullptr;
    if (!::OpenPrinterW(name.data(), &handle, nullptr))
        return nullptr;
    const LONG size = ::DocumentPropertiesW(nullptr, handle, name.data(), nullptr, nullptr, 0);
    std::vector<BYTE> memory(static_cast<std::size_t>(std::max(size, 0L)));
    auto* settings = reinterpret_cast<DEVMODEW*>(memory.data());
    const bool known = size >= static_cast<LONG>(sizeof(DEVMODEW)) &&
                       ::DocumentPropertiesW(nullptr, handle, name.data(), settings, nullptr, DM_OUT_BUFFER) == IDOK;
    ::ClosePrinter(handle);
    if (!known)
        return nullptr;
    settings->dmFields |= DM_PRINTQUALITY | DM_YRESOLUTION;
    settings->dmPrintQuality = static_cast<short>(resolution.cx);
    settings->dmYResolution = static_cast<short>(resolution.cy);
    return ::CreateDCW(Driver, name.c_str(), nullptr, settings);
}

} // namespace

std::vector<Printer> systemPrinters() {
    constexpr DWORD Kinds = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
    constexpr DWORD Level = 2;
    DWORD needed = 0;
    DWORD count = 0;
    ::EnumPrintersW(Kinds, nullptr, Level, nullptr, 0, &needed, &count);
    std::vector<BYTE> memory(needed);
    if (needed == 0 || !::EnumPrintersW(Kinds, nullptr, Level, memory.data(), needed, &needed, &count))
        return {};
    const auto* found = reinterpret_cast<const PRINTER_INFO_2W*>(memory.data());
    const std::wstring usual = defaultPrinterName();
    std::vector<Printer> printers;
    for (DWORD printer = 0; printer < count; ++printer) {
        const std::wstring name = textOf(found[printer].pPrinterName);
        printers.push_back({name, textOf(found[printer].pPortName), name == usual});
    }
    std::sort(printers.begin(), printers.end(), [](const Printer& a, const Printer& b) { return a.name < b.name; });
    return printers;
}

std::optional<Printer> printerNamed(const std::wstring& name) {
    for (const Printer& printer : systemPrinters())
        if (::CompareStringOrdinal(printer.name.c_str(), -1, name.c_str(), -1, TRUE) == CSTR_EQUAL)
            return printer;
    return std::nullopt;
}

std::optional<Printer> usualPrinter() {
    const std::vector<Printer> printers = systemPrinters();
    const auto usual =
        std::find_if(printers.begin(), printers.end(), [](const Printer& printer) { return printer.isDefault; });
    if (usual != printers.end())
        return *usual;
    return printers.empty() ? std::nullopt : std::optional(printers.front());
}

bool choosePrinter(PrintDialogContext& context, const Printer& printer) {
    return take(context, printer, ::CreateDCW(Driver, printer.name.c_str(), nullptr, nullptr));
}

bool choosePrinterForScreen(PrintDialogContext& context, const Printer& printer, int leastWidth) {
    for (const CSize resolution : resolutionsOf(printer)) {
        const HDC device = deviceOf(printer, resolution);
        // Not every driver does what it is asked for.
        if (device && ::GetDeviceCaps(device, LOGPIXELSX) == resolution.cx &&
            ::GetDeviceCaps(device, HORZRES) >= leastWidth)
            return take(context, printer, device);
        if (device)
            ::DeleteDC(device);
    }
    return choosePrinter(context, printer);
}

} // namespace Desk
