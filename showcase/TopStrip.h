#pragma once

#include <array>
#include <optional>
#include <string>

#include <afxwin.h>

#include "DeskFonts.h"
#include "FindBox.h"
#include "HotItem.h"
#include "core/StripLayout.h"

namespace Desk {

enum class StripSwitch : std::size_t { Autoscroll, LockedColumns, BlackTheme };

/// What the user wants of the strip.
class StripEvents {
public:
    virtual ~StripEvents() = default;
    virtual void onPhraseChanged(const std::wstring& phrase) = 0;
    virtual void onFindNext(bool forward) = 0;
    /// The focus came to the search box or left it.
    virtual void onFindFocusChanged() = 0;
    virtual void onSwitch(StripSwitch which) = 0;
};

/// The strip over the table: search box, its buttons and count, and the desk's switches. It shows what it is told; the
/// switches turn only when the window says so.
class TopStrip : public CWnd {
public:
    /// Both outlive the strip.
    TopStrip(DeskFonts& fonts, StripEvents& events);

    BOOL createIn(CWnd* parent, int id);
    static int height();
    /// The least width that shows everything.
    int leastWidth() const;
    FindBox& findBox() { return m_findBox; }

    void setSwitch(StripSwitch which, bool on);
    /// The place among the found rows (0 for none) and their number; nothing without a search.
    struct Found {
        int ordinal;
        int count;
        bool operator==(const Found&) const = default;
    };
    void setFound(std::optional<Found> found);
    /// The theme is another one.
    void repaint();

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnPhraseChanged();
    afx_msg void OnFindFocusChanged();
    DECLARE_MESSAGE_MAP()

private:
    enum class Item { None, FindBox, FindPrevious, FindNext, Autoscroll, LockedColumns, BlackTheme };

    StripSizes sizes() const;
    Item itemAt(CPoint point) const;
    CRect itemRect(const StripSpan& span) const;
    void drawFindBox(CDC& dc);
    void drawFindButton(CDC& dc, const StripSpan& span, Item item, bool down);
    void drawFindCount(CDC& dc);
    void drawSwitch(CDC& dc, std::size_t which);

    DeskFonts& m_fonts;
    StripEvents& m_events;
    FindBox m_findBox;
    StripLayout m_layout;
    HotItem<Item> m_hot{*this, Item::None};
    std::array<bool, StripSwitchCount> m_switches{};
    std::optional<Found> m_found;
};

} // namespace Desk
