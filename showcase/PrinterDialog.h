#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <OrtinControls/IPrintable.h>

#include "OfferedPrintInfo.h"
#include "PageRangeDialog.h"
#include "Printers.h"

namespace Desk {

/// Asks for the printer and for what of the document is printed, and writes the answer into the context of the run. It
/// offers what the printable has enabled and added in the `OfferedPrintInfo`.
class PrinterDialog : public PageRangeDialog {
public:
    /// All outlive the dialog. `printers` is not empty; the default printer is chosen first, and with a `range` its
    /// pages.
    PrinterDialog(DeskFonts& fonts, const std::vector<Printer>& printers, const OfferedPrintInfo& info,
                  PrintDialogContext& context, IPrintable& printable, std::optional<PrintRange> range = {});

    /// What is printed as the selection, told beside the choice.
    void nameSelection(std::wstring text) { m_selectionText = std::move(text); }
    /// True if the user wants to print; the context is complete then.
    bool ask(CWnd& owner) { return run(owner) == IDOK; }

protected:
    void createControls() override;
    CSize firstSize() override;
    void placeControls(CSize client) override;
    CRect complaintArea() override;
    void OnOK() override;

    afx_msg void OnPrinterChosen();
    afx_msg void OnChoice(UINT id);
    afx_msg void OnRangeTyped();
    DECLARE_MESSAGE_MAP()

private:
    /// A choice of what is printed, with its radio button.
    struct Part {
        EPrintOption option;
        unsigned int customId;
        std::unique_ptr<DeskChoice> button;
    };

    void addPart(EPrintOption option, unsigned int customId, const std::wstring& text, bool enabled = true);
    Part* chosenPart();
    void choosePart(EPrintOption option);
    bool takePrinter();
    int contentHeight() const;

    const std::vector<Printer>& m_printers;
    const OfferedPrintInfo& m_info;
    PrintDialogContext& m_context;
    IPrintable& m_printable;
    std::optional<PrintRange> m_firstRange;
    std::wstring m_selectionText;

    CStatic m_printerLabel;
    DeskCombo m_printer;
    std::vector<Part> m_parts;
    DeskChoice m_fit;
    DeskButton m_print;
    DeskButton m_cancel;
};

} // namespace Desk
