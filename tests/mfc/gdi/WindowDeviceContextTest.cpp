#include "LiveGdiHandles.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>

namespace {

constexpr COLORREF S_red = RGB(255, 0, 0);
constexpr COLORREF S_blue = RGB(0, 0, 255);

class PaintedWindow : public CWnd {
public:
    PaintedWindow() {
        CreateEx(0, nullptr, L"gdi", WS_POPUP | WS_BORDER, CRect(100, 100, 200, 180), nullptr, 0);
        ShowWindow(SW_SHOWNOACTIVATE);
    }
    ~PaintedWindow() override { DestroyWindow(); }

    void paintNow(std::function<void()> paint) {
        m_paint = std::move(paint);
        Invalidate();
        UpdateWindow();
        m_paint = nullptr;
    }

    COLORREF pixel(int x, int y) {
        CClientDC dc(this);
        return dc.GetPixel(x, y);
    }

private:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint() {
        if (m_paint) {
            m_paint();
        } else {
            Default();
        }
    }

    std::function<void()> m_paint;
};

BEGIN_MESSAGE_MAP(PaintedWindow, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

TEST(PaintContexts, PaintAndValidateTheirWindow) {
    PaintedWindow window;
    int paints = 0;
    window.paintNow([&] {
        CPaintDC dc(&window);
        ++paints;
        CRect client;
        window.GetClientRect(&client);
        EXPECT_TRUE(CRect(dc.m_ps.rcPaint) == client);
        EXPECT_EQ(dc.m_ps.hdc, dc.m_hDC);
        EXPECT_EQ(&dc, CDC::FromHandle(dc.m_hDC));
        EXPECT_EQ(&window, dc.GetWindow());
        dc.FillSolidRect(client, S_red);
    });
    EXPECT_EQ(1, paints);
    EXPECT_EQ(S_red, window.pixel(3, 3));
    EXPECT_FALSE(window.GetUpdateRect(nullptr));
}

TEST(PaintContexts, OutliveTheirWindow) {
    const auto paintAndDestroy = [] {
        PaintedWindow window;
        window.paintNow([&] {
            CPaintDC dc(&window);
            window.DestroyWindow();
            EXPECT_NE(nullptr, dc.m_hDC);
        });
        EXPECT_EQ(nullptr, window.m_hWnd);
    };
    paintAndDestroy();
    const int before = liveGdiHandles();
    for (int cycle = 0; cycle < 50; ++cycle) {
        paintAndDestroy();
    }
    EXPECT_EQ(before, liveGdiHandles());
}

TEST(PaintContexts, ThrowWithoutAWindow) {
    CWnd none;
    const auto outcomeOf = [](const std::function<void()>& make) {
        try {
            make();
        } catch (CResourceException* exception) {
            exception->Delete();
            return "thrown";
        }
        return "made";
    };
    EXPECT_STREQ("thrown", outcomeOf([&] { const CPaintDC dc(&none); }));
    EXPECT_STREQ("made", outcomeOf([&] { const CClientDC dc(nullptr); }));
    EXPECT_STREQ("made", outcomeOf([&] { const CWindowDC dc(nullptr); }));
}

TEST(WindowContexts, DifferByTheFrame) {
    PaintedWindow window;
    window.paintNow([&] { CPaintDC(&window).FillSolidRect(CRect(0, 0, 200, 200), S_red); });
    CClientDC client(&window);
    CWindowDC whole(&window);
    client.SetPixel(0, 0, S_blue);
    EXPECT_EQ(S_blue, whole.GetPixel(1, 1)) << "the border is one pixel wide";
    EXPECT_EQ(&window, client.GetWindow());
    EXPECT_EQ(&window, whole.GetWindow());
}

TEST(WindowContexts, GoBackWhenTheyEnd) {
    PaintedWindow window;
    const auto useBoth = [&] {
        CClientDC client(&window);
        CWindowDC whole(&window);
        EXPECT_TRUE(client.SetPixelV(0, 0, S_red));
    };
    useBoth();
    CDC::DeleteTempMap();
    const int before = liveGdiHandles();
    for (int cycle = 0; cycle < 100; ++cycle) {
        useBoth();
    }
    EXPECT_EQ(before, liveGdiHandles());
}

TEST(MemoryPictures, OfAWindowCoverItsClientArea) {
    PaintedWindow window;
    window.paintNow([&] {
        CPaintDC dc(&window);
        CMemDC memory(dc, &window);
        EXPECT_TRUE(memory.IsMemDC());
        memory.GetDC().FillSolidRect(CRect(0, 0, 500, 500), S_blue);
    });
    CRect client;
    window.GetClientRect(&client);
    EXPECT_EQ(S_blue, window.pixel(0, 0));
    EXPECT_EQ(S_blue, window.pixel(client.right - 1, client.bottom - 1));
}

TEST(MemoryPictures, OfAWindowThatIsDestroyedMeanwhileAreLostWithoutALeak) {
    const auto paintAndDestroy = [] {
        PaintedWindow window;
        window.paintNow([&] {
            CPaintDC dc(&window);
            CMemDC memory(dc, &window);
            window.DestroyWindow();
            memory.GetDC().FillSolidRect(CRect(0, 0, 9, 9), S_blue);
        });
    };
    paintAndDestroy();
    CGdiObject::DeleteTempMap();
    const int before = liveGdiHandles();
    for (int cycle = 0; cycle < 50; ++cycle) {
        paintAndDestroy();
        CGdiObject::DeleteTempMap();
    }
    EXPECT_EQ(before, liveGdiHandles());
}

/// By the keyboard, once the menu is open.
void chooseFirstItemOfNextMenu(CWnd& window) {
    window.PostMessage(WM_KEYDOWN, VK_DOWN);
    window.PostMessage(WM_KEYDOWN, VK_RETURN);
}

TEST(PopupMenus, GiveTheChosenCommand) {
    PaintedWindow window;
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 77, L"Kopiuj");
    chooseFirstItemOfNextMenu(window);
    EXPECT_EQ(77, menu.TrackPopupMenu(TPM_RETURNCMD | TPM_NONOTIFY, 120, 120, &window));
    chooseFirstItemOfNextMenu(window);
    EXPECT_EQ(77, menu.TrackPopupMenuEx(TPM_RETURNCMD | TPM_NONOTIFY, 120, 120, &window, nullptr));
    window.PostMessage(WM_KEYDOWN, VK_ESCAPE);
    EXPECT_EQ(0, menu.TrackPopupMenu(TPM_RETURNCMD | TPM_NONOTIFY, 120, 120, &window));
    EXPECT_FALSE(menu.TrackPopupMenu(0, 120, 120, nullptr)) << "somebody has to get the command";
}

} // namespace
