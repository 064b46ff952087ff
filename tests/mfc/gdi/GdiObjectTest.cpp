#include "LiveGdiHandles.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

class GdiObjects : public testing::Test {
protected:
    GdiObjects() {
        // The system keeps the first screen context of a process.
        ::ReleaseDC(nullptr, ::GetDC(nullptr));
        CGdiObject::DeleteTempMap();
        m_before = liveGdiHandles();
    }

    int newHandles() const { return liveGdiHandles() - m_before; }

private:
    int m_before;
};

TEST_F(GdiObjects, AreCountedByTheSharedHandleTable) {
    std::vector<HPEN> pens;
    for (int width = 1; width <= 20; ++width) {
        pens.push_back(::CreatePen(PS_SOLID, width, RGB(1, 2, 3)));
    }
    EXPECT_EQ(20, newHandles());
    for (HPEN pen : pens) {
        ::DeleteObject(pen);
    }
    EXPECT_EQ(0, newHandles());
}

TEST_F(GdiObjects, DeleteWhatTheyOwnWhenTheyEnd) {
    {
        const CPen pen(PS_SOLID, 2, RGB(1, 2, 3));
        const CBrush brush(RGB(1, 2, 3));
        const CBrush hatch(HS_CROSS, RGB(1, 2, 3));
        CFont font;
        EXPECT_TRUE(font.CreatePointFont(90, L"Tahoma"));
        CBitmap bitmap;
        EXPECT_TRUE(bitmap.CreateBitmap(4, 4, 1, 32, nullptr));
        CRgn region;
        EXPECT_TRUE(region.CreateRectRgn(0, 0, 5, 5));
        const CBrush pattern(&bitmap);
        EXPECT_EQ(7, newHandles());
    }
    EXPECT_EQ(0, newHandles());
}

TEST_F(GdiObjects, GiveTheOwnershipAwayByDetach) {
    HGDIOBJ handle = nullptr;
    {
        CPen pen(PS_SOLID, 2, RGB(1, 2, 3));
        handle = pen.Detach();
        EXPECT_EQ(nullptr, pen.GetSafeHandle());
        EXPECT_FALSE(pen.DeleteObject());
    }
    EXPECT_EQ(1, newHandles());
    CPen next;
    EXPECT_TRUE(next.Attach(handle));
    EXPECT_TRUE(next.DeleteObject());
    EXPECT_EQ(nullptr, next.GetSafeHandle());
    EXPECT_EQ(0, newHandles());
}

TEST_F(GdiObjects, RefuseANullHandle) {
    CPen pen;
    EXPECT_FALSE(pen.Attach(nullptr));
    CFont font;
    EXPECT_FALSE(font.CreateFontIndirect(nullptr));
    EXPECT_EQ(nullptr, CPen::FromHandle(nullptr));
    EXPECT_EQ(0u, pen.GetObjectType());
}

TEST_F(GdiObjects, ThrowFromAConstructorThatCannotMakeItsHandle) {
    const LOGBRUSH none{0xFFFF, 0, 0};
    CException* caught = nullptr;
    try {
        const CPen pen(PS_GEOMETRIC | 0xF, 1, &none);
    } catch (CResourceException* exception) {
        caught = exception;
        exception->Delete();
    }
    EXPECT_NE(nullptr, caught);
    EXPECT_EQ(0, newHandles());
}

TEST_F(GdiObjects, AreFoundByTheirHandle) {
    CPen pen(PS_SOLID, 2, RGB(1, 2, 3));
    EXPECT_EQ(&pen, CPen::FromHandle(pen));
    const HGDIOBJ handle = pen.Detach();
    CPen* temporary = CPen::FromHandle(static_cast<HPEN>(handle));
    EXPECT_NE(&pen, temporary);
    EXPECT_EQ(handle, temporary->GetSafeHandle());
    EXPECT_EQ(temporary, CPen::FromHandle(static_cast<HPEN>(handle)));
    EXPECT_TRUE(*temporary == *CGdiObject::FromHandle(handle));
    CPen owner;
    owner.Attach(handle);
    EXPECT_EQ(&owner, CPen::FromHandle(static_cast<HPEN>(handle)));
}

TEST_F(GdiObjects, OfAForeignHandleAreOfItsClassAndNeverDeleteIt) {
    struct Case {
        HGDIOBJ handle;
        const CRuntimeClass* expected;
    };
    LOGBRUSH solid{BS_SOLID, RGB(1, 2, 3), 0};
    const Case cases[] = {
        {::CreatePen(PS_SOLID, 3, RGB(1, 2, 3)), RUNTIME_CLASS(CPen)},
        {::ExtCreatePen(PS_GEOMETRIC, 3, &solid, 0, nullptr), RUNTIME_CLASS(CPen)},
        {::CreateSolidBrush(RGB(1, 2, 3)), RUNTIME_CLASS(CBrush)},
        {::CreateFontW(-11, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma"), RUNTIME_CLASS(CFont)},
        {::CreateBitmap(2, 2, 1, 1, nullptr), RUNTIME_CLASS(CBitmap)},
        {::CreateRectRgn(0, 0, 1, 1), RUNTIME_CLASS(CRgn)},
    };
    for (const Case& each : cases) {
        EXPECT_TRUE(CGdiObject::FromHandle(each.handle)->IsKindOf(each.expected)) << each.expected->m_lpszClassName;
    }
    CGdiObject::DeleteTempMap();
    EXPECT_EQ(static_cast<int>(std::size(cases)), newHandles());
    for (const Case& each : cases) {
        EXPECT_TRUE(::DeleteObject(each.handle));
    }
}

TEST_F(GdiObjects, OfAForeignHandleStayUsefulAfterTheyWereDetached) {
    const HPEN handle = ::CreatePen(PS_SOLID, 3, RGB(1, 2, 3));
    EXPECT_EQ(handle, CPen::FromHandle(handle)->Detach());
    EXPECT_EQ(handle, CPen::FromHandle(handle)->GetSafeHandle());
    EXPECT_TRUE(CPen::FromHandle(handle)->DeleteObject());
    EXPECT_EQ(0, newHandles());
}

TEST_F(GdiObjects, DescribeThemselves) {
    LOGPEN pen{};
    EXPECT_GT(CPen(PS_DASH, 1, RGB(1, 2, 3)).GetLogPen(&pen), 0);
    EXPECT_EQ(static_cast<UINT>(PS_DASH), pen.lopnStyle);
    EXPECT_EQ(RGB(1, 2, 3), pen.lopnColor);

    LOGBRUSH brush{};
    EXPECT_GT(CBrush(RGB(4, 5, 6)).GetLogBrush(&brush), 0);
    EXPECT_EQ(RGB(4, 5, 6), brush.lbColor);

    CFont font;
    ASSERT_TRUE(font.CreateFont(-20, 0, 0, 0, FW_BOLD, TRUE, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"Tahoma"));
    LOGFONTW description{};
    EXPECT_GT(font.GetLogFont(&description), 0);
    EXPECT_EQ(-20, description.lfHeight);
    EXPECT_EQ(FW_BOLD, description.lfWeight);
    EXPECT_STREQ(L"Tahoma", description.lfFaceName);

    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(5, 6, 1, 1, nullptr));
    BITMAP measures{};
    EXPECT_GT(bitmap.GetBitmap(&measures), 0);
    EXPECT_EQ(CSize(5, 6), CSize(measures.bmWidth, measures.bmHeight));
    EXPECT_EQ(CSize(0, 0), bitmap.SetBitmapDimension(70, 80));
    EXPECT_EQ(CSize(70, 80), bitmap.GetBitmapDimension());
    EXPECT_EQ(static_cast<UINT>(OBJ_BITMAP), bitmap.GetObjectType());
}

TEST_F(GdiObjects, APointFontMeasuresTenthsOfAPoint) {
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(720, L"Tahoma"));
    LOGFONTW description{};
    font.GetLogFont(&description);
    CDC screen;
    ASSERT_TRUE(screen.CreateCompatibleDC(nullptr));
    EXPECT_EQ(-screen.GetDeviceCaps(LOGPIXELSY), description.lfHeight);
}

TEST_F(GdiObjects, StockObjectsSurviveTheirOwners) {
    {
        CBrush brush;
        EXPECT_TRUE(brush.CreateStockObject(GRAY_BRUSH));
        EXPECT_EQ(::GetStockObject(GRAY_BRUSH), brush.GetSafeHandle());
    }
    LOGBRUSH description{};
    EXPECT_GT(::GetObjectW(::GetStockObject(GRAY_BRUSH), sizeof(description), &description), 0);
    EXPECT_EQ(0, newHandles());
}

TEST_F(GdiObjects, RegionsCombineAndMeasure) {
    CRgn left;
    CRgn right;
    CRgn result;
    left.CreateRectRgn(0, 0, 10, 10);
    right.CreateRectRgnIndirect(CRect(5, 0, 20, 10));
    result.CreateRectRgn(0, 0, 0, 0);
    struct Case {
        const char* what;
        int mode;
        int complexity;
        CRect box;
    };
    const Case cases[] = {
        {"and", RGN_AND, SIMPLEREGION, {5, 0, 10, 10}},
        {"or", RGN_OR, SIMPLEREGION, {0, 0, 20, 10}},
        {"difference", RGN_DIFF, SIMPLEREGION, {0, 0, 5, 10}},
        {"one of both", RGN_XOR, COMPLEXREGION, {0, 0, 20, 10}},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(each.complexity, result.CombineRgn(&left, &right, each.mode)) << each.what;
        CRect box;
        result.GetRgnBox(&box);
        EXPECT_TRUE(box == each.box) << each.what;
    }
    EXPECT_EQ(SIMPLEREGION, result.CopyRgn(&left));
    EXPECT_TRUE(result.EqualRgn(&left));
    EXPECT_FALSE(result.EqualRgn(&right));
    EXPECT_TRUE(result.PtInRegion(CPoint(9, 9)));
    EXPECT_FALSE(result.PtInRegion(10, 9));
    EXPECT_EQ(SIMPLEREGION, result.OffsetRgn(CPoint(10, 0)));
    EXPECT_TRUE(result.PtInRegion(10, 9));
    EXPECT_TRUE(result.RectInRegion(CRect(19, 0, 30, 1)));
    result.SetRectRgn(CRect());
    EXPECT_FALSE(result.PtInRegion(10, 9));
}

} // namespace
