#pragma once

#include <functional>
#include <string>
#include <vector>

#include <OrtinControls/OrtinControls.h>
#include <gtest/gtest.h>

#include "SheetDevice.h"
#include "support/Capture.h"
#include "support/Pump.h"
#include "support/RealInput.h"
#include "support/TopLevelWindow.h"

/// A document whose pages are single colours, and which notes the pages that it draws.
class ColouredPages : public IPrintable {
public:
    int pages = 3;
    CRect area{0, 0, 200, 300};
    std::vector<int> drawn;
    int begun = 0;
    std::function<void(CDC* dc, PrintInfo* info)> onPrint;
    std::function<void()> onBegin;

    static COLORREF colourOf(int page) { return RGB(40 * page, 255 - 40 * page, 128); }
    std::string takeDrawn() {
        std::string text;
        for (const int page : std::exchange(drawn, {})) {
            text += std::to_string(page) + ' ';
        }
        return text;
    }

    const std::wstring& PrintTitle() const override { return m_title; }
    int OnPreparePrinting(PrintInfo*) override { return 1; }
    void OnPrepareDC(CDC*, PrintInfo*) override { ADD_FAILURE() << "a preview prepares no page"; }
    void OnBeginPrinting(CDC* dc, PrintInfo* info) override {
        ++begun;
        EXPECT_TRUE(dc->IsPrinting());
        info->Update(pages);
        info->PrintAreaInObjectUnits(area);
        if (onBegin) {
            onBegin();
        }
    }
    void OnPrint(CDC* dc, PrintInfo* info) override {
        EXPECT_TRUE(dc->IsPrinting());
        drawn.push_back(info->CurrentPage());
        dc->FillSolidRect(&area, colourOf(info->CurrentPage()));
        if (onPrint) {
            onPrint(dc, info);
        }
    }
    void OnEndPrinting(CDC*, PrintInfo*) override { ADD_FAILURE() << "the end is the owner's"; }
    void OnPrintingFinished() override {}
    bool IsPrintAborted() const override { return false; }
    CWnd* AssociatedWindow() const override { return nullptr; }

private:
    std::wstring m_title;
};

class ReachablePreview : public PrintPreviewWindow {
public:
    using PrintPreviewWindow::CalculateTotalHeight;
    using PrintPreviewWindow::ChangePreviewAreaScale;
    using PrintPreviewWindow::Draw;
    using PrintPreviewWindow::FindVisiblePages;
    using PrintPreviewWindow::HandleScroll;
    using PrintPreviewWindow::UpdateHorizontalScroll;
    using PrintPreviewWindow::UpdateVerticalScroll;
};

/// A preview of 300 x 400 pixels of a sheet of 200 x 300, in the place of a label, with the mouse far away.
class PreviewFixture : public testing::Test {
protected:
    static constexpr UINT kId = 500;
    static constexpr COLORREF kScene = RGB(10, 20, 30);
    static constexpr COLORREF kShadow = RGB(200, 100, 0);
    static constexpr Sheet kSmallSheet{96, 200, 300};

    PreviewFixture() {
        support::moveMouse({900, 700});
        SystemColors::UpdateColor(35, kScene);
        SystemColors::UpdateColor(54, kShadow);
        m_placeholder.Create(L"", WS_CHILD | WS_VISIBLE | SS_NOTIFY, CRect(10, 20, 310, 420), &window, kId);
        preview.Init(&info, &document);
        preview.Create(kId, &window);
        support::pumpUntilIdle();
    }
    ~PreviewFixture() override {
        document.onPrint = nullptr;
        document.onBegin = nullptr;
        preview.DestroyWindow();
        SystemColors::SetThemeColor(m_theme);
    }

    void update() {
        preview.Update(*device.dc());
        support::pumpUntilIdle();
    }
    void scale(double delta) {
        preview.ChangePreviewAreaScale(delta);
        support::pumpUntilIdle();
    }
    /// As five seconds after the creation.
    void hideButtons() {
        preview.SendMessage(WM_TIMER, 1);
        support::pumpUntilIdle();
    }

    CSize client() const {
        CRect rect;
        preview.GetClientRect(&rect);
        return rect.Size();
    }
    int leftMargin(int pageWidth) const { return (client().cx - pageWidth) / 2; }
    support::Pixels pixels() {
        preview.RedrawWindow();
        return support::Pixels::ofClient(preview);
    }
    CWnd& button(int id) { return *preview.GetDlgItem(id); }
    bool buttonsShown() { return button(1).IsWindowVisible() && button(2).IsWindowVisible(); }
    /// A point of the client area on the screen.
    POINT onScreen(int x, int y) const {
        CPoint point(x, y);
        preview.ClientToScreen(&point);
        return point;
    }
    POINT middleOf(int id) {
        CRect rect;
        button(id).GetWindowRect(&rect);
        return rect.CenterPoint();
    }
    bool isBarShown(DWORD bar) const { return (preview.GetStyle() & bar) != 0; }
    int position() const { return preview.GetScrollPos(SB_VERT); }

    support::ScopedTopLevelWindow window{CSize(500, 500)};
    ColouredPages document;
    PrintDialogContext context;
    PrintInfoEx info{&context};
    SheetDevice device{kSmallSheet};
    ReachablePreview preview;

private:
    CStatic m_placeholder;
    EThemeColor m_theme = SystemColors::GetCurrentDomainColor();
};
