#pragma once

#include <OrtinControls/PrintInfo.h>

/// The state of a print run as the job driver and the preview own it: with the page in work to be set, the choices that
/// the printable offers, and the pages that are to be printed.
class ORTIN_CONTROLS_API PrintInfoEx : public PrintInfo {
public:
    /// `context` is not owned and outlives the object. All, Pages and Selection are offered.
    explicit PrintInfoEx(const PrintDialogContext* context);
    PrintInfoEx(const PrintInfoEx& other);
    PrintInfoEx& operator=(const PrintInfoEx& other);
    ~PrintInfoEx() override;

    void EnablePrintOption(EPrintOption option, bool enable) override;
    /// Keeps nothing: a class that shows the added choices to the user overrides it.
    void AddPrintOption(unsigned int id, CString text) override;
    /// Does nothing.
    void EnableFitToPage(bool enable) override;

    void SetCurrentPage(int page);
    EPrintOption GetFlags() const;
    bool IsAnythingToPrint() const;
    int TotalPageCount() const;

    /// The range that the run walks, backwards if last is below first. A requested range is cut at the end of the
    /// document and not refused; at its beginning it is not even cut, so 0 and negative numbers come back as they are.
    /// Both are 0 for a document without pages.
    int FirstPageToPrintIndex() const;
    int LastPageToPrintIndex() const;
    /// The number of pages in the range, 0 if its one page is page 0.
    int PagesToPrintCount() const;

private:
    EPrintOption m_flags = static_cast<EPrintOption>(PrintOptionAll | PrintOptionPages | PrintOptionSelection);
};
