#pragma once

#include <functional>

#include <OrtinControls/PrintPreviewWindow.h>

#include "core/ScrollThumb.h"

namespace Desk {

/// The library's preview without the system's scroll bars, which know no theme: they keep range and position, but get
/// no room in the window, and `DeskScrollBar`s beside it stand for them.
class PreviewPages : public PrintPreviewWindow {
public:
    /// Adds to the scale.
    void zoom(double delta) { ChangePreviewAreaScale(delta); }
    /// Makes pages of `sheet` pixels as wide as the window, whatever their scale was. `count` of them are shown.
    void fitWidth(CSize sheet, int count);
    /// Of SB_VERT or SB_HORZ in its own units; without extent where all is in view.
    ScrollState scrollState(int bar);
    void scrollTo(int bar, int position);

    /// Called after each paint: whatever changes the pages' places ends in one.
    std::function<void()> onPainted;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

} // namespace Desk
