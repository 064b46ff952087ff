#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "OfferedPrintInfo.h"
#include "PreviewDialog.h"
#include "PrintRun.h"
#include "PrinterDialog.h"
#include "Printers.h"
#include "QuotesHandler.h"
#include "QuotesTable.h"

namespace Desk {

/// What is told of a print run after its end: one sentence.
struct PrintReport {
    PrintOutcome outcome = PrintOutcome::Nothing;
    std::wstring text;
};

/// The printer dialog together with all that it asks about.
struct PrinterQuestion {
    PrinterQuestion(DeskFonts& fonts, QuotesTable& table, const QuotesHandler& quotes, std::vector<Printer> offered,
                    std::optional<PrintRange> range = {});

    std::vector<Printer> printers;
    PrintDialogContext context;
    std::shared_ptr<OfferedPrintInfo> info = std::make_shared<OfferedPrintInfo>(&context);
    PrinterDialog dialog;
};

/// The quotes on their way to paper: with the user's choice or without a question, and before that on the screen.
class QuotesPrinting {
public:
    /// All outlive the object.
    QuotesPrinting(QuotesTable& table, QuotesHandler& handler, DeskFonts& fonts);

    /// Prints the whole table, all visible columns, without a question.
    PrintReport printAll(const Printer& printer);
    /// Asks what to print and prints it; nothing if the user leaves.
    std::optional<PrintReport> askAndPrint(CWnd& owner, std::optional<PrintRange> range = {});
    /// Shows the pages, and from there on as `askAndPrint`.
    std::optional<PrintReport> showPreview(CWnd& owner);

    std::unique_ptr<PreviewDialog> makePreview(const Printer& printer);
    std::unique_ptr<PrinterQuestion> makeQuestion(const Printer& printer);

private:
    PrintReport print(const std::shared_ptr<PrintInfoEx>& info, const PrintDialogContext& context);

    QuotesTable& m_table;
    QuotesHandler& m_handler;
    DeskFonts& m_fonts;
};

} // namespace Desk
