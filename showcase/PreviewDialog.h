#pragma once

#include <optional>

#include <OrtinControls/PrintInfoEx.h>
#include <OrtinControls/PrintPreviewWindow.h>

#include "PageRangeDialog.h"
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
    /// The library's preview; its zoom is for who derives from it.
    class Pages : public PrintPreviewWindow {
    public:
        void zoom(double delta) { ChangePreviewAreaScale(delta); }
    };

    void showPages();
    bool takeRange();

    IPrintable& m_printable;
    PrintDialogContext m_context;
    PrintInfoEx m_info{&m_context};
    std::optional<PrintRange> m_range;

    CStatic m_placeholder; ///< until the pages take its place
    Pages m_pages;
    DeskButton m_zoomOut;
    DeskButton m_zoomIn;
    DeskButton m_fitWidth;
    DeskButton m_show;
    DeskButton m_print;
    DeskButton m_close;
};

} // namespace Desk
