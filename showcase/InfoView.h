#pragma once

#include <functional>
#include <optional>

#include <OrtinControls/ScrollProcessor.h>

#include "DeskFonts.h"
#include "core/InfoLayout.h"
#include "core/ScrollThumb.h"

namespace Desk {

/// The page that tells about the desk, of which the window shows a part. What has been in view is moved, not painted
/// again.
///
/// The system's scroll bars, which know no theme, keep range and position, but get no room in the window: what stands
/// for them is its owner's.
class InfoView : public CWnd {
public:
    explicit InfoView(DeskFonts& fonts);

    BOOL createIn(CWnd* parent, int id);
    /// The size of the whole page, which is laid out when it is first asked for.
    CSize pageSize();
    /// As a scroll bar is to show it.
    ScrollState horizontal();
    ScrollState vertical();

    void scrollToX(int position);
    void scrollToY(int position);
    /// Whether the key is one that scrolls; it has done so then.
    bool scrollByKey(WPARAM key);
    /// `delta` in units of WHEEL_DELTA a notch, positive away from the user.
    void scrollByWheel(short delta);

    /// The page stands elsewhere.
    std::function<void()> onScrolled;

protected:
    afx_msg void OnNcCalcSize(BOOL calculatesValid, NCCALCSIZE_PARAMS* sizes);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    CFont& fontOf(InfoFont font);
    const InfoPage& page();
    void drawPage(CDC& dc, const CRect& part);
    void tellScrolled();

    DeskFonts& m_fonts;
    CFont m_titleFont;
    CFont m_headingFont;
    std::optional<InfoPage> m_page;
    ScrollProcessor m_scroll{this};
};

} // namespace Desk
