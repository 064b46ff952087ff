#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <afxwin.h>

#include "DeskControls.h"
#include "DeskFonts.h"
#include "DeskScrollBar.h"
#include "chart/CellRow.h"
#include "chart/ChartStyles.h"

namespace Desk {

/// Shows the style of one object of the chart and lets the user change it. Only what can be seen of the object has a
/// control; where they do not fit, the panel scrolls.
///
/// Tab goes from control to control; a panel that gets the focus gives it to the first of them. Escape gives it to the
/// parent. Keys that no control has a use for are left to the windows above.
class StylePanel : public CWnd {
public:
    /// The children, by the style's field that each changes.
    enum Control : int {
        LineColor = 1,
        OtherLineColor,
        FillColor,
        OtherFillColor,
        TextColor,
        OtherTextColor,
        Width,
        Dash,
        Face,
        Size,
        Opacity,
        ScrollBar,
    };

    /// `fonts` outlive the panel.
    explicit StylePanel(DeskFonts& fonts);

    BOOL createIn(CWnd* parent, int id);
    static int width();

    /// Tells nobody.
    void show(const std::wstring& title, const StyleAspects& aspects, const ChartStyle& style);
    void showNothing();
    /// The theme is another one.
    void repaint();

    /// The user has changed the style that is shown. The panel may be gone when it returns.
    std::function<void(const ChartStyle& style)> onChanged;

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* oldWindow);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnFaceChosen();
    afx_msg void OnOtherColor(UINT control);
    afx_msg LRESULT OnCommandLater(WPARAM control, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    enum class ColorField : std::size_t { Line, Fill, Text };
    static constexpr std::size_t ColorFieldCount = 3;

    /// A colour of the style: its palette, and the button for any other.
    struct ColorControls {
        CellRow palette;
        DeskButton other;
    };
    /// A labelled field. `top` is in pixels from the top of the content, which begins above the client area when the
    /// panel is scrolled.
    struct Line {
        const wchar_t* label;
        int top;
        CWnd* field;
        std::optional<ColorField> color; ///< its field stands under the label
    };

    bool createColor(ColorField color, int id);
    bool createPenRows();
    bool createFontRows();
    bool createOpacity();

    void offerFaces();
    void takeStyle();
    void arrange();
    void addLine(bool isShown, const wchar_t* label, CWnd& field, std::optional<ColorField> color = {});
    void placeLine(const Line& line, int right);
    void scrollTo(int position);
    void showFocus();
    void focusNext(bool backwards);

    void change(const std::function<void(ChartStyle&)>& edit);
    void takeFace();
    void askForOther(ColorField color);
    COLORREF colorOf(ColorField color) const;
    static void setColor(ChartStyle& style, ColorField color, COLORREF value);

    void drawLine(CDC& dc, const Line& line);

    DeskFonts& m_fonts;
    std::array<ColorControls, ColorFieldCount> m_colors;
    CellRow m_width;
    CellRow m_dash;
    DeskCombo m_face;
    CellRow m_size;
    CellRow m_opacity;
    DeskScrollBar m_scrollBar;
    CBrush m_listBackground;

    bool m_isShowing = false;
    std::wstring m_title;
    StyleAspects m_aspects;
    ChartStyle m_style;
    std::vector<Line> m_lines;
    ScrollState m_scroll;
};

} // namespace Desk
