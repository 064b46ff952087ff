#include "QuotesPrinting.h"

#include "StatusWindowLook.h"
#include "core/PrintRange.h"

namespace Desk {

namespace {

constexpr wchar_t NothingText[] = L"Nie ma czego drukować: tabela jest pusta.";

std::wstring timeText() {
    SYSTEMTIME now{};
    ::GetLocalTime(&now);
    CString text;
    text.Format(L"Wydrukowano %02u.%02u.%u o %02u:%02u", now.wDay, now.wMonth, now.wYear, now.wHour, now.wMinute);
    return text.GetString();
}

void tell(CWnd& owner, const wchar_t* sentence) {
    owner.MessageBox(sentence, L"OrtinDesk", MB_OK | MB_ICONINFORMATION);
}

} // namespace

PrinterQuestion::PrinterQuestion(DeskFonts& fonts, QuotesTable& table, const QuotesHandler& quotes,
                                 std::vector<Printer> offered, std::optional<PrintRange> range)
    : printers(std::move(offered)),
      dialog(fonts, printers, *info, context, table, range) {
    table.OnPreparePrinting(info.get());
    if (const auto rows = quotes.rowsOfSelection(); rows && info->offers(PrintOptionSelection))
        dialog.nameSelection(L" (" + rowsText(rows->first + 1, rows->end) + L")");
}

QuotesPrinting::QuotesPrinting(QuotesTable& table, QuotesHandler& handler, DeskFonts& fonts)
    : m_table(table),
      m_handler(handler),
      m_fonts(fonts) {}

PrintReport QuotesPrinting::print(const std::shared_ptr<PrintInfoEx>& info, const PrintDialogContext& context) {
    const std::wstring printer = context.PrinterName().GetString();
    if (countPages(m_table, context) == 0)
        return {PrintOutcome::Nothing, NothingText};
    m_handler.setPrintTime(timeText());
    const StatusWindowLook look(m_fonts);
    const PrintOutcome outcome = runPrintJob(info, m_table);
    if (outcome != PrintOutcome::Sent)
        return {outcome, L"Drukowanie na drukarce „" + printer + L"” zostało przerwane."};
    return {outcome, L"Wysłano „" + m_table.PrintTitle() + L"”, " + pagesText(info->PagesToPrintCount()) +
                         L", do drukarki „" + printer + L"” (port " + context.PrinterPortName().GetString() + L")."};
}

PrintReport QuotesPrinting::printAll(const Printer& printer) {
    PrintDialogContext context;
    if (!choosePrinter(context, printer))
        return {PrintOutcome::Failed, L"Drukarka „" + printer.name + L"” nie odpowiada."};
    context.FitToPageArea(true);
    return print(std::make_shared<PrintInfoEx>(&context), context);
}

std::optional<PrintReport> QuotesPrinting::askAndPrint(CWnd& owner, std::optional<PrintRange> range) {
    std::vector<Printer> printers = systemPrinters();
    if (printers.empty()) {
        tell(owner, NoPrinterText);
        return std::nullopt;
    }
    PrinterQuestion question(m_fonts, m_table, m_handler, std::move(printers), range);
    if (!question.dialog.ask(owner))
        return std::nullopt;
    return print(question.info, question.context);
}

std::optional<PrintReport> QuotesPrinting::showPreview(CWnd& owner) {
    const std::optional<Printer> printer = usualPrinter();
    if (!printer) {
        tell(owner, NoPrinterText);
        return std::nullopt;
    }
    // The job enables the main window when it ends, so the preview is gone before it begins.
    std::unique_ptr<PreviewDialog> preview = makePreview(*printer);
    if (!preview->show(owner))
        return std::nullopt;
    const std::optional<PrintRange> range = preview->range();
    preview.reset();
    return askAndPrint(owner, range);
}

std::unique_ptr<PreviewDialog> QuotesPrinting::makePreview(const Printer& printer) {
    m_handler.setPrintTime({});
    return std::make_unique<PreviewDialog>(m_fonts, m_table, printer, m_table.widthOnPaper());
}

std::unique_ptr<PrinterQuestion> QuotesPrinting::makeQuestion(const Printer& printer) {
    return std::make_unique<PrinterQuestion>(m_fonts, m_table, m_handler, std::vector{printer});
}

} // namespace Desk
