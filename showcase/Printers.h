#pragma once

#include <optional>
#include <string>
#include <vector>

#include <OrtinControls/PrintDialogContext.h>

namespace Desk {

/// A printer as the system lists it.
struct Printer {
    std::wstring name;
    std::wstring port;
    bool isDefault = false;
};

/// The printers of the system, by name; empty where there is none.
std::vector<Printer> systemPrinters();
/// Case does not matter, as to the system.
std::optional<Printer> printerNamed(const std::wstring& name);
/// The default printer, or the first one; nothing where there is none.
std::optional<Printer> usualPrinter();

/// Makes the printer the one of the context, with a device context of its own. False, and the context is as before, if
/// the printer gives none.
bool choosePrinter(PrintDialogContext& context, const Printer& printer);

/// The same with the coarsest of the printer's resolutions in which its page is at least `leastWidth` pixels wide: for
/// pages on the screen, each of which is a picture of the device's pixels.
bool choosePrinterForScreen(PrintDialogContext& context, const Printer& printer, int leastWidth);

/// What the user is told where there is no printer.
inline constexpr wchar_t NoPrinterText[] = L"W systemie nie ma żadnej drukarki; dodaj drukarkę i spróbuj jeszcze raz.";

} // namespace Desk
