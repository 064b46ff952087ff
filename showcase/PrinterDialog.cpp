#include "PrinterDialog.h"

#include <algorithm>

#include "PrintRun.h"

namespace Desk {

namespace {

constexpr int PrinterId = 100;
constexpr int FitId = 103;
constexpr int FirstPartId = 110;
constexpr int LastPartId = 129;

/// At 96 pixels to the inch.
constexpr int Width = 440;
constexpr int Margin = 16;
constexpr int Gap = 8;
constexpr int LabelWidth = 76;
constexpr int FieldWidth = 56;
constexpr int ButtonWidth = 96;
constexpr int ButtonHeight = 28;

} // namespace

BEGIN_MESSAGE_MAP(PrinterDialog, PageRangeDialog)
    ON_CBN_SELCHANGE(PrinterId, &PrinterDialog::OnPrinterChosen)
    ON_CONTROL_RANGE(BN_CLICKED, FirstPartId, LastPartId, &PrinterDialog::OnChoice)
    ON_EN_CHANGE(FromId, &PrinterDialog::OnRangeTyped)
    ON_EN_CHANGE(ToId, &PrinterDialog::OnRangeTyped)
END_MESSAGE_MAP()

PrinterDialog::PrinterDialog(DeskFonts& fonts, const std::vector<Printer>& printers, const OfferedPrintInfo& info,
                             PrintDialogContext& context, IPrintable& printable, std::optional<PrintRange> range)
    : PageRangeDialog(fonts, L"Drukuj"),
      m_printers(printers),
      m_info(info),
      m_context(context),
      m_printable(printable),
      m_firstRange(range) {}

// Controls

void PrinterDialog::createControls() {
    makeLabel(m_printerLabel, L"D&rukarka:");
    m_printer.createIn(this, PrinterId, fonts());
    for (const Printer& printer : m_printers)
        m_printer.AddString(printer.name.c_str());
    const auto usual =
        std::find_if(m_printers.begin(), m_printers.end(), [](const Printer& printer) { return printer.isDefault; });
    m_printer.SetCurSel(usual != m_printers.end() ? static_cast<int>(usual - m_printers.begin()) : 0);

    addPart(PrintOptionAll, 0, L"&Wszystko");
    addPart(PrintOptionPages, 0, L"&Strony", m_info.offers(PrintOptionPages));
    addPart(PrintOptionSelection, 0, L"&Zaznaczenie" + m_selectionText, m_info.offers(PrintOptionSelection));
    for (const OfferedPrintInfo::AddedChoice& added : m_info.added())
        addPart(PrintOptionCustom, added.id, added.text);
    makeRange(L"&od");
    m_fit.createIn(this, FitId, L"Dopasuj &kolumny do szerokości strony", DeskChoice::Kind::Check, WS_GROUP, fonts());
    m_fit.choose();
    m_print.createIn(this, IDOK, L"Drukuj", fonts());
    m_print.makeDefault();
    m_cancel.createIn(this, IDCANCEL, L"Anuluj", fonts());

    takePrinter();
    showRange(m_firstRange.value_or(PrintRange{1, std::max(m_pageCount, 1)}));
    choosePart(m_firstRange ? PrintOptionPages : PrintOptionAll);
}

void PrinterDialog::addPart(EPrintOption option, unsigned int customId, const std::wstring& text, bool enabled) {
    m_parts.push_back({option, customId, std::make_unique<DeskChoice>()});
    DeskChoice& button = *m_parts.back().button;
    button.createIn(this, FirstPartId + static_cast<int>(m_parts.size()) - 1, text.c_str(), DeskChoice::Kind::Radio,
                    m_parts.size() == 1 ? WS_GROUP : 0, fonts());
    button.EnableWindow(enabled);
}

int PrinterDialog::contentHeight() const {
    const int rows = 3 + static_cast<int>(m_parts.size());
    return 2 * scaled(Margin) + rows * (rowHeight() + scaled(Gap)) + scaled(Gap) + scaled(ButtonHeight);
}

CSize PrinterDialog::firstSize() {
    return CSize(scaled(Width), contentHeight());
}

void PrinterDialog::placeControls(CSize client) {
    const int left = scaled(Margin);
    const int right = static_cast<int>(client.cx) - left;
    const int step = rowHeight() + scaled(Gap);
    int top = left;
    m_printerLabel.MoveWindow(left, top, scaled(LabelWidth), rowHeight());
    m_printer.MoveWindow(left + scaled(LabelWidth), top, right - left - scaled(LabelWidth), scaled(200));
    top += step + scaled(Gap);
    for (const Part& part : m_parts) {
        const int width = part.option == PrintOptionPages ? part.button->neededWidth() : right - left;
        part.button->MoveWindow(left, top, width, rowHeight());
        if (part.option == PrintOptionPages)
            placeRange(left + width + scaled(Gap), top, scaled(FieldWidth));
        top += step;
    }
    m_fit.MoveWindow(left, top, m_fit.neededWidth(), rowHeight());
    const int buttonTop = static_cast<int>(client.cy) - left - scaled(ButtonHeight);
    m_cancel.MoveWindow(right - scaled(ButtonWidth), buttonTop, scaled(ButtonWidth), scaled(ButtonHeight));
    m_print.MoveWindow(right - 2 * scaled(ButtonWidth) - scaled(Gap), buttonTop, scaled(ButtonWidth),
                       scaled(ButtonHeight));
}

/// Over the buttons.
CRect PrinterDialog::complaintArea() {
    CRect fit;
    m_fit.GetWindowRect(&fit);
    ScreenToClient(&fit);
    const int top = fit.bottom + scaled(Gap);
    return CRect(scaled(Margin), top, CXTPClientRect(this).right - scaled(Margin), top + rowHeight());
}

// Choices

PrinterDialog::Part* PrinterDialog::chosenPart() {
    const auto chosen =
        std::find_if(m_parts.begin(), m_parts.end(), [](const Part& part) { return part.button->isChosen(); });
    return chosen != m_parts.end() ? &*chosen : nullptr;
}

void PrinterDialog::choosePart(EPrintOption option) {
    for (const Part& part : m_parts)
        part.button->choose(part.option == option);
}

/// Takes the printer of the list into the context, and learns how many pages the document has there.
bool PrinterDialog::takePrinter() {
    const Printer& printer = m_printers[static_cast<std::size_t>(std::max(m_printer.GetCurSel(), 0))];
    const bool taken = choosePrinter(m_context, printer);
    m_pageCount = taken ? countPages(m_printable, m_context) : 0;
    complain(taken ? std::wstring() : L"Drukarka „" + printer.name + L"” nie odpowiada; wybierz inną.");
    m_print.EnableWindow(taken);
    return taken;
}

void PrinterDialog::OnPrinterChosen() {
    takePrinter();
}

void PrinterDialog::OnChoice(UINT) {
    complain({});
}

void PrinterDialog::OnRangeTyped() {
    complain({});
    // The first numbers are the dialog's own.
    if (hasFocusInRange())
        choosePart(PrintOptionPages);
}

void PrinterDialog::OnOK() {
    const Part* const part = chosenPart();
    if (!part || !m_context.PrinterDC())
        return;
    if (part->option == PrintOptionPages) {
        const std::optional<PrintRange> range = typedRange();
        if (!range)
            return;
        m_context.FromPage(range->from);
        m_context.ToPage(range->to);
    }
    m_context.PrintOption(part->option);
    m_context.CustomPrintOptionId(part->customId);
    m_context.FitToPageArea(m_fit.isChosen());
    PageRangeDialog::OnOK();
}

} // namespace Desk
