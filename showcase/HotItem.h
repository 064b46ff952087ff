#pragma once

#include <utility>

#include "MouseLeaving.h"

namespace Desk {

/// What of a window lies under the mouse, or `none`. Each change repaints the window.
template <typename Item>
class HotItem {
public:
    /// `window` outlives it.
    HotItem(CWnd& window, Item none) : m_window(window), m_none(none), m_item(none) {}

    operator Item() const { return m_item; }
    /// On WM_MOUSEMOVE.
    void moveTo(Item item) {
        if (m_item == m_none)
            watchMouseLeaving(m_window);
        set(item);
    }
    /// On WM_MOUSELEAVE.
    void leave() { set(m_none); }

private:
    void set(Item item) {
        if (std::exchange(m_item, item) != item)
            m_window.Invalidate(FALSE);
    }

    CWnd& m_window;
    const Item m_none;
    Item m_item;
};

} // namespace Desk
