#include "StylePanel.h"

#include <OrtinFoundation/Keyboard.h>
#include <XTToolkitPro.h>

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <set>

#include "DeskColors.h"
#include "DeskShapes.h"
#include "ScopedSelection.h"
#include "chart/ChartPalette.h"
#include "chart/ColorDialog.h"
#include "core/PolishFormat.h"

namespace Desk {

namespace {

/// At 96 pixels to the inch.
constexpr int PanelWidth = 224;
constexpr int Margin = 12;
constexpr int Gap = 6;
constexpr int TitleHeight = 24;
constexpr int LabelHeight = 22;
constexpr int LabelWidth = 78;
constexpr int OtherWidth = 52;
constexpr int OtherHeight = 20;
constexpr int Chip = 12;
constexpr int SwatchSide = 2;
constexpr int SwatchEnd = 3;
constexpr int SampleInset = 4;
constexpr int ListHeight = 200;
constexpr int WheelStep = 40;

constexpr int GreatestWidth = 5;
constexpr int OpacitySteps = 10;
/// Heights of letters at 96 pixels to the inch.
constexpr std::array Sizes{10, 11, 12, 13, 14, 16};
/// Strokes and gaps in turn, at 96 pixels to the inch, of the styles of pens from PS_SOLID to PS_DASHDOTDOT.
constexpr std::array<std::array<int, 6>, 5> Dashes{{{100}, {6, 3}, {2, 2}, {6, 2, 2, 2}, {6, 2, 2, 2, 2, 2}}};

constexpr wchar_t NothingShown[] = L"Wskaż obiekt na wykresie, aby zmienić jego styl.";

/// Posted for what a control of the system tells: it may have ended with the panel when the answer comes, and it still
/// looks at itself after it has told.
constexpr UINT CommandLater = WM_APP + 1;

void drawDashes(CDC& dc, const CRect& area, const std::array<int, 6>& dashes) {
    const int top = area.CenterPoint().y - scaled(1);
    std::size_t step = 0;
    for (int x = area.left; x < area.right;) {
        const int length = scaled(dashes[step]);
        if (step % 2 == 0) {
            const CRect stroke(x, top, std::min<int>(x + length, area.right), top + scaled(2));
            dc.FillSolidRect(&stroke, Colors::text());
        }
        x += length;
        step = step + 1 < dashes.size() && dashes[step + 1] > 0 ? step + 1 : 0;
    }
}

void drawSwatch(CDC& dc, const CRect& area, COLORREF color) {
    CRect swatch = area;
    swatch.DeflateRect(scaled(SwatchSide), scaled(SwatchEnd));
    fillRound(dc, swatch, scaled(2), color, Colors::inputFrame());
}

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
    const bool hasRows =
        createColor(ColorField::Line, LineColor) && createColor(ColorField::Fill, FillColor) &&
        createColor(ColorField::Text, TextColor) &&
        m_width.createIn(this, Width, GreatestWidth,
                         [](CDC& dc, const CRect& area, int cell) {
                             CRect line = area;
                             line.DeflateRect(scaled(SampleInset), 0);
                             line.top = area.CenterPoint().y - (cell + 1) / 2;
                             line.bottom = line.top + cell + 1;
                             dc.FillSolidRect(&line, Colors::text());
                         }) &&
        m_dash.createIn(this, Dash, static_cast<int>(Dashes.size()),
                        [](CDC& dc, const CRect& area, int cell) {
                            CRect line = area;
                            line.DeflateRect(scaled(SampleInset), 0);
                            drawDashes(dc, line, Dashes[static_cast<std::size_t>(cell)]);
                        }) &&
        m_face.createIn(this, Face, m_fonts) &&
        m_size.createIn(this, Size, static_cast<int>(Sizes.size()),
                        [this](CDC& dc, const CRect& area, int cell) {
                            const ScopedSelection font(dc, m_fonts.text());
                            const std::wstring size = std::to_wstring(Sizes[static_cast<std::size_t>(cell)]);
                            CRect place = area;
                            dc.SetBkMode(TRANSPARENT);
                            dc.SetTextColor(Colors::text());
                            dc.DrawText(size.c_str(), -1, &place, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
                        }) &&
        m_opacity.createIn(this, Opacity, OpacitySteps,
                           [this](CDC& dc, const CRect& area, int cell) {
                               const COLORREF color = colorOf(m_aspects.line ? ColorField::Line : ColorField::Fill);
                               const double share = (cell + 1.0) / OpacitySteps;
                               drawSwatch(dc, area, Colors::blend(Colors::input(), color, share));
                           }) &&
        m_scrollBar.createIn(this, ScrollBar);
    if (!hasRows)
        return FALSE;
    addFaces();
    m_width.onChosen = [this](int cell) { change([cell](ChartStyle& style) { style.pen.Width(cell + 1); }); };
    m_dash.onChosen = [this](int cell) {
        change([cell](ChartStyle& style) { style.pen.LineStyle(static_cast<unsigned int>(cell)); });
    };
    m_size.onChosen = [this](int cell) {
        change([cell](ChartStyle& style) {
            LOGFONTW font = style.font.GetLOGFONT();
            font.lfHeight = -scaled(Sizes[static_cast<std::size_t>(cell)]);
            style.font.FromLOGFONT(font, 0);
        });
    };
    m_opacity.onChosen = [this](int cell) {
        change([cell](ChartStyle& style) { style.opacity = (cell + 1.0) / OpacitySteps; });
    };
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
    return controls.palette.createIn(this, id, static_cast<int>(PaletteSize), [](CDC& dc, const CRect& area, int cell) {
        drawSwatch(dc, area, chartPalette()[static_cast<std::size_t>(cell)]);
    }) && controls.other.createIn(this, id + 1, L"Inny…", m_fonts);
}

void StylePanel::addFaces() {
    for (const std::wstring& face : offeredFaces())
        m_face.AddString(face.c_str());
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
    const std::wstring face = m_style.font.GetFaceName();
    int place = m_face.FindStringExact(-1, face.c_str());
    if (place == CB_ERR)
        place = m_face.AddString(face.c_str());
    if (m_face.GetCurSel() != place)
        m_face.SetCurSel(place);
}

// Places

void StylePanel::arrange() {
    m_lines.clear();
    m_scroll.extent = m_isShowing ? scaled(Gap) + scaled(TitleHeight) : 0;
    addLine(m_aspects.line, L"Linia", m_colors[0].palette, ColorField::Line);
    addLine(m_aspects.fill, L"Wypełnienie", m_colors[1].palette, ColorField::Fill);
    addLine(m_aspects.font, L"Tekst", m_colors[2].palette, ColorField::Text);
    addLine(m_aspects.width, L"Grubość", m_width);
    addLine(m_aspects.dash, L"Kreski", m_dash);
    addLine(m_aspects.font, L"Krój", m_face);
    addLine(m_aspects.font, L"Rozmiar", m_size);
    addLine(m_aspects.opacity, L"Krycie", m_opacity);
    m_scroll.page = CXTPClientRect(this).Height();
    scrollTo(m_scroll.position);
}

void StylePanel::addLine(bool isShown, const wchar_t* label, CWnd& field, std::optional<ColorField> color) {
    if (!isShown) {
        if (GetFocus() == &field)
            GetParent()->SetFocus();
        field.ShowWindow(SW_HIDE);
        if (color)
            m_colors[static_cast<std::size_t>(*color)].other.ShowWindow(SW_HIDE);
        return;
    }
    m_lines.push_back({label, m_scroll.extent, &field, color});
    m_scroll.extent += CellRow::height() + scaled(Gap) + (color ? scaled(LabelHeight) : 0);
}

void StylePanel::scrollTo(int position) {
    m_scroll.position = std::clamp(position, 0, m_scroll.greatestPosition());
    const CXTPClientRect client(this);
    const bool scrolls = m_scroll.greatestPosition() > 0;
    const int barLeft = scrolls ? client.right - DeskScrollBar::width() : client.right;
    m_scrollBar.setState(m_scroll);
    m_scrollBar.MoveWindow(barLeft, 0, DeskScrollBar::width(), client.Height());
    m_scrollBar.ShowWindow(scrolls ? SW_SHOWNA : SW_HIDE);
    for (const Line& line : m_lines)
        placeLine(line, barLeft - scaled(Margin));
    Invalidate(FALSE);
}

void StylePanel::placeLine(const Line& line, int right) {
    const int top = line.top - m_scroll.position;
    const int left = scaled(Margin) + (line.color ? 0 : scaled(LabelWidth));
    const int fieldTop = top + (line.color ? scaled(LabelHeight) : 0);
    const int height = line.field == &m_face ? scaled(ListHeight) : CellRow::height();
    line.field->MoveWindow(left, fieldTop, std::max(right - left, 0), height);
    line.field->ShowWindow(SW_SHOWNA);
    if (line.color) {
        DeskButton& other = m_colors[static_cast<std::size_t>(*line.color)].other;
        other.MoveWindow(right - scaled(OtherWidth), top, scaled(OtherWidth), scaled(OtherHeight));
        other.ShowWindow(SW_SHOWNA);
    }
}

void StylePanel::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    if (m_scrollBar.GetSafeHwnd())
        arrange();
}

// Focus and keys

BOOL StylePanel::PreTranslateMessage(MSG* message) {
    const bool isDropped = m_face.GetDroppedState();
    if (message->message == WM_MOUSEWHEEL) {
        if (isDropped)
            return FALSE;
        OnMouseWheel(LOWORD(message->wParam), static_cast<short>(HIWORD(message->wParam)), message->pt);
        return TRUE;
    }
    if (message->message != WM_KEYDOWN || OrtinTools::Keyboard::IsCtrlPressed())
        return CWnd::PreTranslateMessage(message);
    switch (message->wParam) {
    case VK_TAB:
        focusNext(OrtinTools::Keyboard::IsShiftPressed());
        return TRUE;
    case VK_ESCAPE:
        if (isDropped)
            break;
        GetParent()->SetFocus();
        return TRUE;
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
    case VK_HOME:
    case VK_END:
    case VK_PRIOR:
    case VK_NEXT:
    case VK_SPACE:
    case VK_RETURN:
        break;
    default:
        return CWnd::PreTranslateMessage(message);
    }
    // They are the control's that has the focus, whatever else they mean to the windows above.
    ::TranslateMessage(message);
    ::DispatchMessageW(message);
    return TRUE;
}

void StylePanel::focusNext(bool backwards) {
    if (CWnd* next = GetNextDlgTabItem(GetFocus(), backwards))
        next->SetFocus();
    showFocus();
}

void StylePanel::showFocus() {
    const CWnd* const focus = GetFocus();
    for (const Line& line : m_lines) {
        const bool hasFocus =
            focus == line.field || (line.color && focus == &m_colors[static_cast<std::size_t>(*line.color)].other);
        if (!hasFocus)
            continue;
        const int bottom = line.top + CellRow::height() + scaled(Gap) + (line.color ? scaled(LabelHeight) : 0);
        if (line.top < m_scroll.position)
            scrollTo(line.top);
        else if (bottom > m_scroll.position + m_scroll.page)
            scrollTo(bottom - m_scroll.page);
    }
}

void StylePanel::OnSetFocus(CWnd*) {
    focusNext(false);
}

BOOL StylePanel::OnMouseWheel(UINT, short delta, CPoint) {
    scrollTo(m_scroll.position - delta * scaled(WheelStep) / WHEEL_DELTA);
    return TRUE;
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

// Painting

void StylePanel::OnPaint() {
    CPaintDC paint(this);
    CXTPBufferDC dc(paint);
    const CXTPClientRect client(this);
    dc.FillSolidRect(&client, Colors::strip());
    const CRect edge(client.left, client.top, client.left + 1, client.bottom);
    dc.FillSolidRect(&edge, Colors::line());
    dc.SetBkMode(TRANSPARENT);
    CRect area = client;
    area.DeflateRect(scaled(Margin), scaled(Gap));
    if (!m_isShowing) {
        const ScopedSelection font(dc, m_fonts.text());
        dc.SetTextColor(Colors::mutedText());
        dc.DrawText(NothingShown, -1, &area, DT_LEFT | DT_WORDBREAK | DT_NOPREFIX);
        return;
    }
    area.OffsetRect(0, -m_scroll.position);
    area.bottom = area.top + scaled(TitleHeight);
    {
        const ScopedSelection font(dc, m_fonts.bold());
        dc.SetTextColor(Colors::stripText());
        dc.DrawText(m_title.c_str(), -1, &area, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS | DT_NOPREFIX);
    }
    const ScopedSelection font(dc, m_fonts.text());
    for (const Line& line : m_lines)
        drawLine(dc, line);
}

void StylePanel::drawLine(CDC& dc, const Line& line) {
    std::wstring label = line.label;
    if (line.field == &m_opacity)
        label += L" " + formatNumber(m_style.opacity * 100, 0) + L"%";
    CRect area(0, 0, scaled(LabelWidth), line.color ? scaled(OtherHeight) : CellRow::height());
    area.OffsetRect(scaled(Margin), line.top - m_scroll.position);
    dc.SetTextColor(Colors::stripText());
    dc.DrawText(label.c_str(), -1, &area, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    if (!line.color)
        return;
    CRect chip(0, 0, scaled(Chip), scaled(Chip));
    chip.OffsetRect(area.left + m_fonts.widthOf(label) + scaled(Gap), area.top + (area.Height() - scaled(Chip)) / 2);
    fillRound(dc, chip, scaled(4), colorOf(*line.color), Colors::inputFrame());
}

BOOL StylePanel::OnEraseBkgnd(CDC*) {
    return TRUE;
}

HBRUSH StylePanel::OnCtlColor(CDC* dc, CWnd* control, UINT kind) {
    if (kind != CTLCOLOR_LISTBOX)
        return CWnd::OnCtlColor(dc, control, kind);
    m_listBackground.DeleteObject();
    m_listBackground.CreateSolidBrush(Colors::input());
    return m_listBackground;
}

} // namespace Desk
