#include "LiveGdiHandles.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr COLORREF S_ground = RGB(255, 255, 255);
constexpr COLORREF S_red = RGB(255, 0, 0);
constexpr COLORREF S_blue = RGB(0, 0, 255);

/// A memory context with a white picture of 24 x 16 pixels; its picture reads as text, one letter a pixel.
class DeviceContext : public testing::Test {
protected:
    DeviceContext() {
        dc.CreateCompatibleDC(nullptr);
        m_bitmap.CreateBitmap(S_width, S_height, 1, 32, nullptr);
        m_previous = dc.SelectObject(&m_bitmap);
        dc.FillSolidRect(CRect(0, 0, S_width, S_height), S_ground);
    }
    ~DeviceContext() override { dc.SelectObject(m_previous); }

    std::string picture(const CRect& part) {
        std::string text;
        for (int y = part.top; y < part.bottom; ++y) {
            for (int x = part.left; x < part.right; ++x) {
                const COLORREF color = ::GetPixel(dc, x, y);
                text += color == S_ground ? '.' : color == S_red ? 'R' : color == S_blue ? 'B' : '?';
            }
            text += '\n';
        }
        return text;
    }

    static constexpr int S_width = 24;
    static constexpr int S_height = 16;
    CDC dc;

private:
    CBitmap m_bitmap;
    CBitmap* m_previous = nullptr;
};

TEST(DeviceContexts, DeleteThemselvesUnlessDetached) {
    const int before = liveGdiHandles();
    {
        CDC dc;
        EXPECT_TRUE(dc.CreateCompatibleDC(nullptr));
        EXPECT_GT(liveGdiHandles(), before);
        EXPECT_EQ(&dc, CDC::FromHandle(dc));
        EXPECT_EQ(dc.m_hDC, dc.m_hAttribDC);
    }
    EXPECT_EQ(before, liveGdiHandles());

    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const HDC handle = dc.Detach();
    EXPECT_EQ(nullptr, dc.m_hAttribDC);
    EXPECT_EQ(handle, CDC::FromHandle(handle)->GetSafeHdc());
    EXPECT_FALSE(dc.DeleteDC());
    CDC::DeleteTempMap();
    EXPECT_TRUE(::DeleteDC(handle));
    EXPECT_EQ(before, liveGdiHandles());
}

TEST(DeviceContexts, OfTheScreenAndOfInformationAreMadeByName) {
    CDC screen;
    EXPECT_TRUE(screen.CreateDC(L"DISPLAY", nullptr, nullptr, nullptr));
    CDC information;
    EXPECT_TRUE(information.CreateIC(L"DISPLAY", nullptr, nullptr, nullptr));
    EXPECT_EQ(screen.GetDeviceCaps(LOGPIXELSX), information.GetDeviceCaps(LOGPIXELSX));
    EXPECT_FALSE(screen.IsPrinting());
    CDC none;
    EXPECT_FALSE(none.CreateDC(L"NoSuchDriver", nullptr, nullptr, nullptr));
}

TEST_F(DeviceContext, SelectingGivesBackWhatWasSelected) {
    CPen pen(PS_SOLID, 1, S_red);
    CBrush brush(S_blue);
    CFont font;
    font.CreatePointFont(80, L"Tahoma");
    CPen* stockPen = dc.SelectObject(&pen);
    CBrush* stockBrush = dc.SelectObject(&brush);
    CFont* stockFont = dc.SelectObject(&font);
    EXPECT_EQ(::GetStockObject(BLACK_PEN), stockPen->GetSafeHandle());
    EXPECT_EQ(::GetStockObject(WHITE_BRUSH), stockBrush->GetSafeHandle());
    EXPECT_EQ(&pen, dc.GetCurrentPen());
    EXPECT_EQ(&brush, dc.GetCurrentBrush());
    EXPECT_EQ(&font, dc.GetCurrentFont());
    EXPECT_EQ(&pen, dc.SelectStockObject(WHITE_PEN));
    EXPECT_EQ(&brush, dc.SelectObject(stockBrush));
    EXPECT_EQ(&font, dc.SelectObject(stockFont));
    EXPECT_TRUE(dc.GetCurrentBitmap()->IsKindOf(RUNTIME_CLASS(CBitmap)));
}

TEST_F(DeviceContext, ASelectedRegionClips) {
    CRgn region;
    region.CreateRectRgn(2, 1, 6, 3);
    EXPECT_EQ(SIMPLEREGION, dc.SelectObject(&region));
    dc.FillSolidRect(CRect(0, 0, 8, 4), S_red);
    dc.SelectClipRgn(nullptr);
    EXPECT_EQ("........\n..RRRR..\n..RRRR..\n........\n", picture(CRect(0, 0, 8, 4)));
}

TEST_F(DeviceContext, ClipsNarrowAndGrow) {
    CRect box;
    EXPECT_EQ(SIMPLEREGION, dc.IntersectClipRect(CRect(2, 0, 8, 4)));
    EXPECT_EQ(SIMPLEREGION, dc.GetClipBox(&box));
    EXPECT_TRUE(box == CRect(2, 0, 8, 4));
    EXPECT_EQ(COMPLEXREGION, dc.ExcludeClipRect(CRect(4, 1, 6, 3)));
    EXPECT_FALSE(dc.PtVisible(4, 1));
    EXPECT_TRUE(dc.PtVisible(3, 1));
    EXPECT_FALSE(dc.RectVisible(CRect(4, 1, 6, 3)));
    dc.FillSolidRect(CRect(0, 0, 8, 4), S_red);
    EXPECT_EQ("..RRRRRR\n..RR..RR\n..RR..RR\n..RRRRRR\n", picture(CRect(0, 0, 8, 4)));
    CRgn more;
    more.CreateRectRgn(0, 0, 1, 1);
    EXPECT_EQ(COMPLEXREGION, dc.SelectClipRgn(&more, RGN_OR));
    EXPECT_TRUE(dc.PtVisible(0, 0));
}

TEST_F(DeviceContext, StateComesBackByItsNumber) {
    const int saved = dc.SaveDC();
    EXPECT_GT(saved, 0);
    const COLORREF text = dc.SetTextColor(S_red);
    dc.SetBkColor(S_blue);
    const int mode = dc.SetBkMode(TRANSPARENT);
    EXPECT_EQ(OPAQUE, mode);
    EXPECT_EQ(S_red, dc.GetTextColor());
    EXPECT_EQ(S_blue, dc.GetBkColor());
    EXPECT_EQ(TRANSPARENT, dc.GetBkMode());
    EXPECT_TRUE(dc.RestoreDC(saved));
    EXPECT_EQ(text, dc.GetTextColor());
    EXPECT_EQ(OPAQUE, dc.GetBkMode());
    EXPECT_FALSE(dc.RestoreDC(saved));
}

TEST_F(DeviceContext, SettersGiveThePreviousMode) {
    EXPECT_EQ(R2_COPYPEN, dc.SetROP2(R2_NOT));
    EXPECT_EQ(R2_NOT, dc.GetROP2());
    EXPECT_EQ(ALTERNATE, dc.SetPolyFillMode(WINDING));
    EXPECT_EQ(WINDING, dc.GetPolyFillMode());
    EXPECT_EQ(BLACKONWHITE, dc.SetStretchBltMode(HALFTONE));
    EXPECT_EQ(HALFTONE, dc.GetStretchBltMode());
    EXPECT_EQ(static_cast<UINT>(TA_LEFT), dc.SetTextAlign(TA_RIGHT));
    EXPECT_EQ(static_cast<UINT>(TA_RIGHT), dc.GetTextAlign());
    EXPECT_EQ(0, dc.SetTextCharacterExtra(3));
    EXPECT_EQ(3, dc.SetTextCharacterExtra(0));
    EXPECT_TRUE(dc.SetBrushOrg(3, 4) == CPoint(0, 0));
    EXPECT_TRUE(dc.GetBrushOrg() == CPoint(3, 4));
}

TEST_F(DeviceContext, MappingTurnsLogicalIntoDeviceUnits) {
    EXPECT_EQ(MM_TEXT, dc.SetMapMode(MM_ANISOTROPIC));
    EXPECT_TRUE(dc.SetWindowExt(100, 100) == CSize(1, 1));
    EXPECT_TRUE(dc.SetViewportExt(CSize(200, 300)) == CSize(1, 1));
    EXPECT_TRUE(dc.SetViewportOrg(10, 20) == CPoint(0, 0));
    EXPECT_TRUE(dc.SetWindowOrg(CPoint(5, 5)) == CPoint(0, 0));
    CPoint point(15, 15);
    dc.LPtoDP(&point);
    EXPECT_TRUE(point == CPoint(30, 50));
    dc.DPtoLP(&point);
    EXPECT_TRUE(point == CPoint(15, 15));
    CRect rect(5, 5, 15, 15);
    dc.LPtoDP(&rect);
    EXPECT_TRUE(rect == CRect(10, 20, 30, 50));
    dc.DPtoLP(&rect);
    EXPECT_TRUE(rect == CRect(5, 5, 15, 15));
    CSize size(10, 10);
    dc.LPtoDP(&size);
    EXPECT_TRUE(size == CSize(20, 30)) << "origins have no part in a size";
    dc.DPtoLP(&size);
    EXPECT_TRUE(size == CSize(10, 10));
    EXPECT_TRUE(dc.OffsetViewportOrg(1, 2) == CPoint(10, 20));
    EXPECT_TRUE(dc.GetViewportOrg() == CPoint(11, 22));
    EXPECT_TRUE(dc.OffsetWindowOrg(1, 1) == CPoint(5, 5));
    EXPECT_TRUE(dc.GetWindowOrg() == CPoint(6, 6));
    EXPECT_TRUE(dc.GetWindowExt() == CSize(100, 100));
    EXPECT_TRUE(dc.GetViewportExt() == CSize(200, 300));
    EXPECT_EQ(MM_ANISOTROPIC, dc.GetMapMode());
}

TEST_F(DeviceContext, AnswersFromTheAttributeContextAndDrawsToTheOther) {
    CDC attributes;
    attributes.CreateCompatibleDC(nullptr);
    dc.SetAttribDC(attributes);
    dc.SetTextColor(S_red);
    EXPECT_EQ(S_red, attributes.GetTextColor());
    CPen pen(PS_SOLID, 1, S_red);
    CPen* previous = dc.SelectObject(&pen);
    EXPECT_EQ(&pen, attributes.GetCurrentPen());
    dc.SelectObject(previous);
    dc.SetViewportOrg(3, 4);
    EXPECT_TRUE(attributes.GetViewportOrg() == CPoint(3, 4));
    dc.SetViewportOrg(0, 0);
    EXPECT_GT(dc.SaveDC(), 0);
    EXPECT_TRUE(dc.RestoreDC(-1));
    dc.ReleaseAttribDC();
    EXPECT_EQ(nullptr, dc.m_hAttribDC);
    dc.SetAttribDC(dc.m_hDC);
}

TEST_F(DeviceContext, LinesRunUpToTheirLastPoint) {
    CPen pen(PS_SOLID, 1, S_red);
    CPen* previous = dc.SelectObject(&pen);
    EXPECT_TRUE(dc.MoveTo(1, 1) == CPoint(0, 0));
    EXPECT_TRUE(dc.LineTo(5, 1));
    EXPECT_TRUE(dc.GetCurrentPosition() == CPoint(5, 1));
    const POINT points[] = {{1, 3}, {4, 3}, {4, 5}};
    EXPECT_TRUE(dc.Polyline(points, 3));
    dc.SelectObject(previous);
    EXPECT_EQ(".......\n.RRRR..\n.......\n.RRRR..\n....R..\n.......\n", picture(CRect(0, 0, 7, 6)));
}

TEST_F(DeviceContext, ShapesHaveABorderAndAnInside) {
    CPen pen(PS_SOLID, 1, S_red);
    CBrush brush(S_blue);
    CPen* previousPen = dc.SelectObject(&pen);
    CBrush* previousBrush = dc.SelectObject(&brush);
    EXPECT_TRUE(dc.Rectangle(CRect(0, 0, 5, 4)));
    const POINT corners[] = {{8, 0}, {12, 0}, {12, 3}, {8, 3}};
    EXPECT_TRUE(dc.Polygon(corners, 4));
    EXPECT_TRUE(dc.Ellipse(CRect(0, 6, 8, 14)));
    EXPECT_TRUE(dc.RoundRect(CRect(10, 6, 20, 14), CPoint(4, 4)));
    dc.SelectObject(previousPen);
    dc.SelectObject(previousBrush);
    EXPECT_EQ("RRRRR...RRRRR\nRBBBR...RBBBR\nRBBBR...RBBBR\nRRRRR...RRRRR\n", picture(CRect(0, 0, 13, 4)));
    EXPECT_EQ(S_blue, dc.GetPixel(4, 10));
    EXPECT_EQ(S_ground, dc.GetPixel(0, 6));
    EXPECT_EQ(S_blue, dc.GetPixel(CPoint(15, 10)));
    EXPECT_EQ(S_ground, dc.GetPixel(10, 6));
}

TEST_F(DeviceContext, FillsAndFramesRectangles) {
    CBrush red(S_red);
    dc.FillRect(CRect(0, 0, 2, 2), &red);
    dc.FrameRect(CRect(3, 0, 6, 3), &red);
    dc.FillSolidRect(7, 0, 2, 2, S_blue);
    EXPECT_EQ("RR.RRR.BB.\nRR.R.R.BB.\n...RRR....\n", picture(CRect(0, 0, 10, 3)));
    EXPECT_EQ(S_blue, dc.GetBkColor()) << "filling by the background leaves its colour behind";
    dc.InvertRect(CRect(0, 0, 1, 1));
    EXPECT_EQ(RGB(0, 255, 255), dc.GetPixel(0, 0));
    dc.DrawFocusRect(CRect(0, 5, 9, 9));
    EXPECT_NE(picture(CRect(0, 5, 9, 9)).find('?'), std::string::npos);
    dc.DrawFocusRect(CRect(0, 5, 9, 9));
    EXPECT_EQ(picture(CRect(0, 5, 9, 9)).find('?'), std::string::npos);
}

TEST_F(DeviceContext, A3dRectangleHasTwoColoursAndItsMixedCornersAreOfTheSecond) {
    dc.Draw3dRect(CRect(1, 1, 6, 5), S_red, S_blue);
    EXPECT_EQ(".......\n"
              ".RRRRB.\n"
              ".R...B.\n"
              ".R...B.\n"
              ".BBBBB.\n"
              ".......\n",
              picture(CRect(0, 0, 7, 6)));
}

TEST_F(DeviceContext, CopiesStretchesAndBlends) {
    dc.FillSolidRect(CRect(0, 0, 2, 2), S_red);
    EXPECT_TRUE(dc.BitBlt(4, 0, 2, 2, &dc, 0, 0, SRCCOPY));
    EXPECT_TRUE(dc.StretchBlt(8, 0, 4, 2, &dc, 0, 0, 2, 2, SRCCOPY));
    EXPECT_TRUE(dc.PatBlt(14, 0, 2, 2, BLACKNESS));
    EXPECT_EQ("RR..RR..RRRR..??\nRR..RR..RRRR..??\n", picture(CRect(0, 0, 16, 2)));
    dc.FillSolidRect(CRect(0, 4, 1, 5), S_blue);
    EXPECT_TRUE(dc.AlphaBlend(4, 4, 1, 1, &dc, 0, 4, 1, 1, BLENDFUNCTION{AC_SRC_OVER, 0, 255, 0}));
    EXPECT_EQ(S_blue, dc.GetPixel(4, 4));
    TRIVERTEX ends[] = {{0, 8, 0xFF00, 0, 0, 0}, {4, 10, 0xFF00, 0, 0, 0}};
    GRADIENT_RECT mesh{0, 1};
    EXPECT_TRUE(dc.GradientFill(ends, 2, &mesh, 1, GRADIENT_FILL_RECT_H));
    EXPECT_EQ("RRRR.\nRRRR.\n", picture(CRect(0, 8, 5, 10)));
    EXPECT_TRUE(dc.TransparentBlt(10, 8, 5, 1, &dc, 0, 8, 5, 1, S_ground));
    EXPECT_EQ("RRRR.\n", picture(CRect(10, 8, 15, 9)));
    EXPECT_EQ(S_red, dc.SetPixel(20, 0, S_red));
    EXPECT_TRUE(dc.SetPixelV(21, 0, S_blue));
    EXPECT_EQ("RB\n", picture(CRect(20, 0, 22, 1)));
}

TEST_F(DeviceContext, TextIsMeasuredAndDrawn) {
    CFont font;
    font.CreateFont(-12, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, NONANTIALIASED_QUALITY, 0, L"Tahoma");
    CFont* previous = dc.SelectObject(&font);
    const CSize one = dc.GetTextExtent(L"W", 1);
    EXPECT_GT(one.cx, 0);
    EXPECT_TRUE(dc.GetTextExtent(CString(L"WW")).cx >= 2 * one.cx - 1);
    EXPECT_TRUE(dc.GetOutputTextExtent(L"WW", -1) == dc.GetTextExtent(L"WWx", 2));
    TEXTMETRICW metrics{};
    EXPECT_TRUE(dc.GetTextMetrics(&metrics));
    EXPECT_EQ(one.cy, metrics.tmHeight);
    wchar_t expectedFace[LF_FACESIZE];
    ::GetTextFaceW(dc, LF_FACESIZE, expectedFace); // the font that the system chose for the asked one
    CString face;
    EXPECT_EQ(static_cast<int>(wcslen(expectedFace)), dc.GetTextFace(face));
    EXPECT_STREQ(expectedFace, face);

    CRect needed(0, 0, 1000, 0);
    const int height = dc.DrawText(CString(L"W"), &needed, DT_CALCRECT | DT_SINGLELINE);
    EXPECT_GT(height, 0);
    EXPECT_EQ(height, needed.Height());
    EXPECT_EQ(one.cx, needed.Width());
    EXPECT_EQ(picture(CRect(0, 0, S_width, S_height)).find('R'), std::string::npos);

    dc.SetTextColor(S_red);
    dc.SetBkMode(TRANSPARENT);
    const auto drawn = [this] {
        const bool found = picture(CRect(0, 0, S_width, S_height)).find('R') != std::string::npos;
        dc.FillSolidRect(CRect(0, 0, S_width, S_height), S_ground);
        return found;
    };
    EXPECT_TRUE(dc.TextOut(0, 0, L"W", -1));
    EXPECT_TRUE(drawn());
    EXPECT_TRUE(dc.TextOut(0, 0, CString(L"W")));
    EXPECT_TRUE(drawn());
    EXPECT_TRUE(dc.ExtTextOut(0, 0, ETO_CLIPPED, CRect(0, 0, 20, 16), CString(L"W"), nullptr));
    EXPECT_TRUE(drawn());
    CRect area(0, 0, S_width, S_height);
    EXPECT_GT(dc.DrawText(L"W", -1, &area, DT_CENTER | DT_VCENTER | DT_SINGLELINE), 0);
    EXPECT_TRUE(drawn());
    dc.SelectObject(previous);
}

TEST_F(DeviceContext, AMemoryPictureIsCopiedWhenItEnds) {
    const int before = liveGdiHandles();
    {
        CMemDC memory(dc, CRect(3, 1, 7, 4));
        EXPECT_TRUE(memory.IsMemDC());
        EXPECT_NE(&dc, &memory.GetDC());
        memory.GetDC().FillSolidRect(CRect(0, 0, 100, 100), S_red);
        memory.GetDC().FillSolidRect(CRect(4, 2, 6, 3), S_blue);
        EXPECT_EQ(".........\n", picture(CRect(0, 2, 9, 3))) << "nothing shows before the end";
    }
    EXPECT_EQ(".........\n"
              "...RRRR..\n"
              "...RBBR..\n"
              "...RRRR..\n"
              ".........\n",
              picture(CRect(0, 0, 9, 5)));
    CGdiObject::DeleteTempMap();
    EXPECT_EQ(before, liveGdiHandles());
}

TEST_F(DeviceContext, AMemoryPictureIsCopiedWholeWhateverThePainterLeftBehind) {
    {
        CMemDC memory(dc, CRect(3, 1, 7, 4));
        CDC& painted = memory.GetDC();
        painted.FillSolidRect(CRect(3, 1, 7, 4), S_red);
        painted.IntersectClipRect(CRect(3, 1, 4, 2));
        painted.SetMapMode(MM_ANISOTROPIC);
        painted.SetWindowExt(10, 10);
        painted.SetViewportOrg(50, 50);
    }
    EXPECT_EQ("...RRRR..\n...RRRR..\n...RRRR..\n", picture(CRect(0, 1, 9, 4)));
}

TEST_F(DeviceContext, AnEmptyMemoryPictureIsTheTargetItself) {
    CMemDC memory(dc, CRect(3, 3, 3, 9));
    EXPECT_FALSE(memory.IsMemDC());
    EXPECT_EQ(&dc, &memory.GetDC());
}

} // namespace
