#include <OrtinControls/PrintInfoEx.h>

#include "PageRange.h"

namespace {

PageRange pagesToPrint(const PrintDialogContext& context, int pagesCount) {
    return context.PrintOption() == PrintOptionPages
               ? PageRange::requested(pagesCount, context.FromPage(), context.ToPage())
               : PageRange::wholeDocument(pagesCount);
}

} // namespace

PrintInfoEx::PrintInfoEx(const PrintDialogContext* context) {
    m_dialogContext = context;
}

PrintInfoEx::PrintInfoEx(const PrintInfoEx& other) = default;
PrintInfoEx& PrintInfoEx::operator=(const PrintInfoEx& other) = default;
PrintInfoEx::~PrintInfoEx() = default;

void PrintInfoEx::EnablePrintOption(EPrintOption option, bool enable) {
    m_flags = static_cast<EPrintOption>(enable ? m_flags | option : m_flags & ~option);
}

void PrintInfoEx::AddPrintOption(unsigned int, CString) {}

void PrintInfoEx::EnableFitToPage(bool) {}

void PrintInfoEx::SetCurrentPage(int page) {
    m_currentPage = page;
}

EPrintOption PrintInfoEx::GetFlags() const {
    return m_flags;
}

bool PrintInfoEx::IsAnythingToPrint() const {
    return m_pagesCount > 0;
}

int PrintInfoEx::TotalPageCount() const {
    return m_pagesCount;
}

int PrintInfoEx::FirstPageToPrintIndex() const {
    return pagesToPrint(*m_dialogContext, m_pagesCount).first;
}

int PrintInfoEx::LastPageToPrintIndex() const {
    return pagesToPrint(*m_dialogContext, m_pagesCount).last;
}

int PrintInfoEx::PagesToPrintCount() const {
    return pagesToPrint(*m_dialogContext, m_pagesCount).count();
}
