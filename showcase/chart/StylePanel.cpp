#include "StylePanel.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <set>

#include "DeskColors.h"
#include "chart/ChartPalette.h"
#include "chart/ColorDialog.h"
#include "chart/StyleSamples.h"

namespace Desk {

namespace {

/// At 96 pixels to the inch.
constexpr int PanelWidth = 224;

constexpr int OpacitySteps = 10;
/// Heights of letters at 96 pixels to the inch.
constexpr std::array Sizes{10, 11, 12, 13, 14, 16};

/// Posted for what a control of the system tells: it may have ended with the panel when the answer comes, and it still
/// looks at itself after it has told.
constexpr UINT CommandLater = WM_APP + 1;

/// The desk's own typeface, and the installed ones that have Polish letters, without those turned for vertical text.
std::set<std::wstring> offeredFaces() {
    std::set<std::wstring> faces{deskFont(DeskTextHeight, FW_NORMAL).lfFaceName};
    LOGFONTW wanted{};
    wanted.lfCharSet = EASTEUROPE_CHARSET;
    const CClientDC screen(nullptr);
    const auto take = [](const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM target) -> int {
        if (font->lfFaceName[0] != L'@')
            reinterpret_cast<std::set<std::wstring>*>(target)->insert(font->lfFaceName);
        return TRUE;
    };
    ::EnumFontFamiliesExW(screen, &wanted, take, reinterpret_cast<LPARAM>(&faces), 0);
    return faces;
}

} // namespace

BEGIN_MESSAGE_MAP(StylePanel, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_WM_CTLCOLOR()
    ON_WM_MOUSEWHEEL()
    ON_CBN_SELCHANGE(Face, &StylePanel::OnFaceChosen)
    ON_CONTROL_RANGE(BN_CLICKED, LineColor, OtherTextColor, &StylePanel::OnOtherColor)
    ON_MESSAGE(CommandLater, &StylePanel::OnCommandLater)
END_MESSAGE_MAP()

// Controls

StylePanel::StylePanel(DeskFonts& fonts) : m_fonts(fonts) {}

int StylePanel::width() {
    return scaled(PanelWidth);
}

BOOL StylePanel::createIn(CWnd* parent, int id) {
    if (!CWnd::Create(AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW)), L"",
                      WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, CRect(0, 0, width(), 10), parent, static_cast<UINT>(id)))
        return FALSE;
    if (!createColor(ColorField::Line, LineColor) || !createColor(ColorField::Fill, FillColor) ||
        !createColor(ColorField::Text, TextColor) || !createPenRows() || !createFontRows() || !createOpacity() ||
        !m_scrollBar.createIn(this, ScrollBar))
        return FALSE;
    m_scrollBar.onScrollTo = [this](int position) { scrollTo(position); };
    showNothing();
    return TRUE;
}

bool StylePanel::createColor(ColorField color, int id) {
    ColorControls& controls = m_colors[static_cast<std::size_t>(color)];
    controls.palette.onChosen = [this, color](int cell) {
        const COLORREF chosen = chartPalette()[static_cast<std::size_t>(cell)];
        change([color, chosen](ChartStyle& style) { setColor(style, color, chosen); });
    };
    const auto draw = [](CDC& dc, const CRect& area, int cell) {
        drawSwatch(dc, area, chartPalette()[static_cast<std::size_t>(cell)]);
    };
    return controls.palette.createIn(this, id, static_cast<int>(PaletteSize), draw) &&
           controls.other.createIn(this, id + 1, L"Inny…", m_fonts);
}

bool StylePanel::createPenRows() {
    m_width.onChosen = [this](int cell) { change([cell](ChartStyle& style) { style.pen.Width(cell + 1); }); };
    m_dash.onChosen = [this](int cell) {
        change([cell](ChartStyle& style) { style.pen.LineStyle(static_cast<unsigned int>(cell)); });
    };
    const auto drawWidth = [](CDC& dc, const CRect& area, int cell) { drawWidthSample(dc, area, cell + 1); };
    return m_width.createIn(this, Width, GreatestPenWidth, drawWidth) &&
           m_dash.createIn(this, Dash, DashCount, &drawDashSample);
}

bool StylePanel::createFontRows() {
    m_size.onChosen = [this](int cell) {
        change([cell](ChartStyle& style) {
            LOGFONTW font = style.font.GetLOGFONT();
            font.lfHeight = -scaled(Sizes[static_cast<std::size_t>(cell)]);
            style.font.FromLOGFONT(font, 0);
        });
    };
    const auto drawSize = [this](CDC& dc, const CRect& area, int cell) {
        drawNumber(dc, area, Sizes[static_cast<std::size_t>(cell)], m_fonts.text());
    };
    return m_face.createIn(this, Face, m_fonts) &&
           m_size.createIn(this, Size, static_cast<int>(Sizes.size()), drawSize);
}

/// Once, when a font is first shown: a system may have hundreds.
void StylePanel::offerFaces() {
    if (m_face.GetCount() > 0)
        return;
    for (const std::wstring& face : offeredFaces())
        m_face.AddString(face.c_str());
}

bool StylePanel::createOpacity() {
    m_opacity.onChosen = [this](int cell) {
        change([cell](ChartStyle& style) { style.opacity = (cell + 1.0) / OpacitySteps; });
    };
    return m_opacity.createIn(this, Opacity, OpacitySteps, [this](CDC& dc, const CRect& area, int cell) {
        const COLORREF color = colorOf(m_aspects.line ? ColorField::Line : ColorField::Fill);
        drawSwatch(dc, area, Colors::blend(Colors::input(), color, (cell + 1.0) / OpacitySteps));
    });
}

// What is shown

void StylePanel::show(const std::wstring& title, const StyleAspects& aspects, const ChartStyle& style) {
    const bool isOther = !m_isShowing || title != m_title || aspects != m_aspects;
    m_isShowing = true;
    m_title = title;
    m_aspects = aspects;
    m_style = style;
    takeStyle();
    if (isOther) {
        m_scroll.position = 0;
        arrange();
    }
    Invalidate(FALSE);
}

void StylePanel::showNothing() {
    m_isShowing = false;
    m_aspects = {};
    m_scroll.position = 0;
    arrange();
    Invalidate(FALSE);
}

void StylePanel::repaint() {
    takeStyle();
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

/// The controls as the style is.
void StylePanel::takeStyle() {
    const Palette palette = chartPalette();
    for (std::size_t color = 0; color < ColorFieldCount; ++color) {
        const auto* const place = std::find(palette.begin(), palette.end(), colorOf(static_cast<ColorField>(color)));
        m_colors[color].palette.choose(static_cast<int>(place - palette.begin()));
    }
    // A pen of the width 0 draws as one of 1.
    m_width.choose(std::max(static_cast<int>(m_style.pen.Width()), 1) - 1);
    m_dash.choose(static_cast<int>(m_style.pen.LineStyle()));
    const long height = m_style.font.GetHeight();
    const auto* const size =
        std::find_if(Sizes.begin(), Sizes.end(), [height](int pixels) { return -scaled(pixels) == height; });
    m_size.choose(static_cast<int>(size - Sizes.begin()));
    const double steps = m_style.opacity * OpacitySteps;
    constexpr double Rounding = 0.001;
    m_opacity.choose(std::abs(steps - std::round(steps)) < Rounding ? static_cast<int>(std::lround(steps)) - 1
                                                                    : CellRow::None);
    if (!m_aspects.font)
        return;
    offerFaces();
    const std::wstring face = m_style.font.GetFaceName();
    int place = m_face.FindStringExact(-1, face.c_str());
    if (place == CB_ERR)
        place = m_face.AddString(face.c_str());
    if (m_face.GetCurSel() != place)
        m_face.SetCurSel(place);
}

// Changes

/// Nothing of the panel is looked at after it has told: it may be gone.
void StylePanel::change(const std::function<void(ChartStyle&)>& edit) {
    edit(m_style);
    takeStyle();
    Invalidate(FALSE);
    const auto tell = onChanged;
    const ChartStyle changed = m_style;
    if (tell)
        tell(changed);
}

void StylePanel::OnFaceChosen() {
    PostMessage(CommandLater, Face);
}

void StylePanel::OnOtherColor(UINT control) {
    PostMessage(CommandLater, control);
}

LRESULT StylePanel::OnCommandLater(WPARAM control, LPARAM) {
    switch (control) {
    case Face:
        takeFace();
        break;
    case OtherLineColor:
        askForOther(ColorField::Line);
        break;
    case OtherFillColor:
        askForOther(ColorField::Fill);
        break;
    case OtherTextColor:
        askForOther(ColorField::Text);
        break;
    }
    return 0;
}

void StylePanel::takeFace() {
    CString face;
    m_face.GetWindowText(face);
    if (m_style.font.GetFaceName() == face.GetString() || face.GetLength() >= LF_FACESIZE)
        return;
    change([&face](ChartStyle& style) {
        LOGFONTW font = style.font.GetLOGFONT();
        std::fill(std::begin(font.lfFaceName), std::end(font.lfFaceName), L'\0');
        std::wcscpy(font.lfFaceName, face.GetString());
        style.font.FromLOGFONT(font, 0);
    });
}

void StylePanel::askForOther(ColorField color) {
    const HWND window = m_hWnd;
    const std::optional<COLORREF> chosen = askForColor(*GetTopLevelParent(), colorOf(color));
    if (chosen && FromHandlePermanent(window) == this && *chosen != colorOf(color))
        change([color, &chosen](ChartStyle& style) { setColor(style, color, *chosen); });
}

COLORREF StylePanel::colorOf(ColorField color) const {
    switch (color) {
    case ColorField::Line:
        return m_style.pen.Color();
    case ColorField::Fill:
        return m_style.fill;
    case ColorField::Text:
        return m_style.text;
    }
    return 0;
}

void StylePanel::setColor(ChartStyle& style, ColorField color, COLORREF value) {
    switch (color) {
    case ColorField::Line:
        style.pen.Color(value);
        break;
    case ColorField::Fill:
        style.fill = value;
        break;
    case ColorField::Text:
        style.text = value;
        break;
    }
}

HBRUSH StylePanel::OnCtlColor(CDC* dc, CWnd* control, UINT kind) {
    if (kind != CTLCOLOR_LISTBOX)
        return CWnd::OnCtlColor(dc, control, kind);
    m_listBackground.DeleteObject();
    m_listBackground.CreateSolidBrush(Colors::input());
    return m_listBackground;
}

} // namespace Desk
