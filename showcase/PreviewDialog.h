#pragma once

#include <optional>

#include <OrtinControls/PrintInfoEx.h>

#include "DeskScrollBar.h"
#include "PageRangeDialog.h"
#include "PreviewPages.h"
#include "PrintRun.h"
#include "Printers.h"

namespace Desk {

/// The pages as they would come out of the printer, all or a range of them; from here they can be printed.
class PreviewDialog : public PageRangeDialog {
public:
    /// All outlive the dialog. `leastWidth` is the width of the printable's page in its own units, which are the pixels
    /// of a page of the preview.
    PreviewDialog(DeskFonts& fonts, IPrintable& printable, const Printer& printer, int leastWidth);

    /// True if the user wants to print what is shown.
    bool show(CWnd& owner) { return run(owner) == IDOK; }
    /// The range that was shown last; nothing if all pages were.
    std::optional<PrintRange> range() const { return m_range; }

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    void createControls() override;
    CSize firstSize() override;
    void placeControls(CSize client) override;
    CRect complaintArea() override;
    BOOL OnInitDialog() override;
    void OnOK() override;

    afx_msg void OnDestroy();
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnZoomIn();
    afx_msg void OnZoomOut();
    afx_msg void OnFitWidth();
    afx_msg void OnShowRange();
    DECLARE_MESSAGE_MAP()

private:
    void showPages();
    bool takeRange();
    void placePages(const CRect& area);
    void showScrollStates();

    IPrintable& m_printable;
    PrintDialogContext m_context;
    PrintInfoEx m_info{&m_context};
    std::optional<PrintRange> m_range;

    CStatic m_placeholder; ///< until the pages take its place
    PreviewPages m_pages;
    DeskScrollBar m_downBar;
    DeskScrollBar m_acrossBar{DeskScrollBar::Direction::Horizontal}; ///< shown where the pages are too wide
    DeskButton m_zoomOut;
    DeskButton m_zoomIn;
    DeskButton m_fitWidth;
    DeskButton m_show;
    DeskButton m_print;
    DeskButton m_close;
};

} // namespace Desk
