#include "../mfc/gdi/LiveGdiHandles.h"

#include <XTToolkitPro.h>

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr COLORREF S_white = RGB(255, 255, 255);
constexpr COLORREF S_red = RGB(255, 0, 0);

class DrawContexts : public testing::Test {
protected:
    DrawContexts() {
        target.CreateCompatibleDC(nullptr);
        m_bitmap.CreateBitmap(12, 6, 1, 32, nullptr);
        m_previous = target.SelectObject(&m_bitmap);
        target.FillSolidRect(0, 0, 12, 6, S_white);
    }
    ~DrawContexts() override { target.SelectObject(m_previous); }

    std::string rowOfTarget(int y) {
        std::string row;
        for (int x = 0; x < 12; ++x) {
            const COLORREF color = target.GetPixel(x, y);
            row += color == S_white ? '.' : color == S_red ? 'R' : '?';
        }
        return row;
    }

    CDC target;

private:
    CBitmap m_bitmap;
    CBitmap* m_previous = nullptr;
};

TEST_F(DrawContexts, ABufferIsCopiedWhenItEndsInTheSameCoordinates) {
    const int before = liveGdiHandles();
    {
        CXTPBufferDC buffer(target, CRect(2, 1, 6, 3));
        buffer.FillSolidRect(0, 0, 100, 100, S_red);
        buffer.FillSolidRect(3, 1, 1, 1, S_white);
        buffer.IntersectClipRect(CRect(5, 5, 6, 6));
        buffer.SetViewportOrg(40, 40);
        EXPECT_EQ("............", rowOfTarget(1));
    }
    EXPECT_EQ("............", rowOfTarget(0));
    EXPECT_EQ("..R.RR......", rowOfTarget(1));
    EXPECT_EQ("..RRRR......", rowOfTarget(2));
    EXPECT_EQ("............", rowOfTarget(3));
    EXPECT_EQ(before, liveGdiHandles());
}

TEST_F(DrawContexts, APenIsSelectedForALifetime) {
    const int before = liveGdiHandles();
    const HGDIOBJ previous = ::GetCurrentObject(target, OBJ_PEN);
    {
        const CXTPPenDC pen(target, S_red, PS_SOLID, 1);
        target.MoveTo(1, 0);
        target.LineTo(4, 0);
    }
    EXPECT_EQ(".RRR........", rowOfTarget(0));
    EXPECT_EQ(previous, ::GetCurrentObject(target, OBJ_PEN));
    EXPECT_EQ(before, liveGdiHandles());
}

TEST_F(DrawContexts, ABitmapIsSelectedForALifetime) {
    CBitmap bitmap;
    bitmap.CreateBitmap(3, 3, 1, 32, nullptr);
    const HGDIOBJ previous = ::GetCurrentObject(target, OBJ_BITMAP);
    {
        const CXTPBitmapDC selected(&target, &bitmap);
        EXPECT_EQ(bitmap.GetSafeHandle(), ::GetCurrentObject(target, OBJ_BITMAP));
    }
    EXPECT_EQ(previous, ::GetCurrentObject(target, OBJ_BITMAP));
    EXPECT_TRUE(bitmap.DeleteObject());
}

class BufferedWindow : public CWnd {
public:
    BufferedWindow() {
        CreateEx(0, nullptr, L"x", WS_POPUP | WS_BORDER, CRect(50, 60, 150, 140), nullptr, 0);
        ShowWindow(SW_SHOWNOACTIVATE);
        UpdateWindow();
    }
    ~BufferedWindow() override { DestroyWindow(); }

private:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint() {
        CPaintDC dc(this);
        CXTPBufferDC buffer(dc);
        buffer.FillSolidRect(CXTPClientRect(this), S_red);
    }
};

BEGIN_MESSAGE_MAP(BufferedWindow, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

TEST(WindowRectangles, AreThoseOfTheWindow) {
    BufferedWindow window;
    EXPECT_TRUE(CXTPWindowRect(&window) == CRect(50, 60, 150, 140));
    EXPECT_TRUE(CXTPClientRect(window.m_hWnd) == CRect(0, 0, 98, 78));
    EXPECT_TRUE(CXTPClientRect(static_cast<CWnd*>(nullptr)) == CRect());
    EXPECT_TRUE(CXTPWindowRect(static_cast<HWND>(nullptr)) == CRect());
}

TEST(WindowRectangles, ABufferOfAPaintContextCoversWhatIsToBePainted) {
    BufferedWindow window;
    CClientDC dc(&window);
    EXPECT_EQ(S_red, dc.GetPixel(0, 0));
    EXPECT_EQ(S_red, dc.GetPixel(97, 77));
}

} // namespace
