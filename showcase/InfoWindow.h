#pragma once

#include "DeskScrollBar.h"
#include "InfoView.h"

namespace Desk {

/// The window "Informacje": what the keys and gestures do, what the colours mean, whose libraries are in use. It floats
/// over the desk, which goes on working. Arrows, Page Up and Down, Home, End and the wheel scroll it, Escape closes it.
class InfoWindow : public CWnd {
public:
    /// `fonts` outlive the window.
    explicit InfoWindow(DeskFonts& fonts) : m_view(fonts) {}
    ~InfoWindow() override;

    /// Makes the window, in the middle of the desk, and leaves it to the caller to show it; nothing if it is there.
    BOOL openOver(CWnd& desk);
    /// The theme is another one.
    void repaint();

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    DECLARE_MESSAGE_MAP()

private:
    bool takeKey(WPARAM key);
    void placeWindows();
    void showState();

    InfoView m_view;
    DeskScrollBar m_verticalBar;
    DeskScrollBar m_horizontalBar{DeskScrollBar::Direction::Horizontal};
};

} // namespace Desk
