#include <OrtinControls/PrintInfoEx.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <ostream>

#include "SheetDevice.h"
#include "support/Capture.h"

namespace {

class PrintInfos : public testing::Test {
protected:
    PrintDialogContext m_context;
    PrintInfoEx m_info{&m_context};
};

/// The first page to print, the last one, and their number.
std::string pagesOf(const PrintInfoEx& info) {
    return std::to_string(info.FirstPageToPrintIndex()) + " to " + std::to_string(info.LastPageToPrintIndex()) + ", " +
           std::to_string(info.PagesToPrintCount());
}

} // namespace

static std::ostream& operator<<(std::ostream& out, const CRect& rect) {
    return out << '(' << rect.left << ", " << rect.top << ")-(" << rect.right << ", " << rect.bottom << ')';
}

TEST_F(PrintInfos, BeginBeforeTheFirstPageOfAnUnknownDocument) {
    EXPECT_EQ(CRect(0, 0, 0, 0), m_info.PrintAreaInObjectUnits());
    EXPECT_EQ(0, m_info.CurrentPage());
    EXPECT_EQ(0, m_info.TotalPageCount());
    EXPECT_FALSE(m_info.IsAnythingToPrint());
    EXPECT_TRUE(m_info.ContinuePrinting());
    EXPECT_EQ(PrintOptionAll | PrintOptionPages | PrintOptionSelection, m_info.GetFlags());
}

TEST_F(PrintInfos, ReadTheDialogAsItIsNow) {
    const HDC dc = ::CreateCompatibleDC(nullptr);
    m_context.PrinterDC(dc);
    m_context.PrinterPortName(L"LPT1:");
    m_context.PrinterName(L"Drukarka");
    m_context.PrintOption(PrintOptionCustom);
    m_context.CustomPrintOptionId(5);
    m_context.FitToPageArea(true);
    EXPECT_EQ(dc, m_info.PrinterDC());
    EXPECT_STREQ(L"LPT1:", m_info.PrinterPortName());
    EXPECT_STREQ(L"Drukarka", m_info.PrinterDeviceName());
    EXPECT_EQ(PrintOptionCustom, m_info.PrintOption());
    EXPECT_EQ(5U, m_info.CustomPrintOptionId());
    EXPECT_TRUE(m_info.FitToPageArea());
}

TEST_F(PrintInfos, OfferAndWithdrawTheChoicesOfTheDialog) {
    m_info.EnablePrintOption(PrintOptionSelection, false);
    EXPECT_EQ(PrintOptionAll | PrintOptionPages, m_info.GetFlags());
    m_info.EnablePrintOption(PrintOptionCustom, true);
    EXPECT_EQ(PrintOptionAll | PrintOptionPages | PrintOptionCustom, m_info.GetFlags());
    m_info.EnablePrintOption(static_cast<EPrintOption>(PrintOptionAll | PrintOptionCustom), false);
    EXPECT_EQ(PrintOptionPages, m_info.GetFlags());
    m_info.EnablePrintOption(PrintOptionPages, true);
    EXPECT_EQ(PrintOptionPages, m_info.GetFlags());
}

TEST_F(PrintInfos, KeepNoListOfAddedChoices) {
    m_info.AddPrintOption(0, L"Widoczny obszar");
    m_info.EnableFitToPage(true);
    EXPECT_EQ(PrintOptionAll | PrintOptionPages | PrintOptionSelection, m_info.GetFlags());
    EXPECT_FALSE(m_info.FitToPageArea());
}

TEST_F(PrintInfos, AreCopiedWhole) {
    m_info.PrintAreaInObjectUnits(CRect(1, 2, 3, 4));
    m_info.SetCurrentPage(5);
    m_info.Update(6);
    m_info.ContinuePrinting(false);
    m_info.EnablePrintOption(PrintOptionPages, false);
    const PrintInfoEx copy(m_info);
    PrintInfoEx assigned(nullptr);
    assigned = m_info;
    m_context.FromPage(2);
    m_context.PrintOption(PrintOptionPages);
    for (const PrintInfoEx* each : {&copy, static_cast<const PrintInfoEx*>(&assigned)}) {
        EXPECT_EQ(CRect(1, 2, 3, 4), each->PrintAreaInObjectUnits());
        EXPECT_EQ(5, each->CurrentPage());
        EXPECT_EQ(6, each->TotalPageCount());
        EXPECT_FALSE(each->ContinuePrinting());
        EXPECT_EQ(PrintOptionAll | PrintOptionSelection, each->GetFlags());
        EXPECT_EQ("2 to 1, 2", pagesOf(*each)) << "both read the same dialog";
    }
}

TEST_F(PrintInfos, WalkTheWholeDocumentUnlessPagesWereAskedFor) {
    m_context.FromPage(5);
    m_context.ToPage(2);
    for (const EPrintOption option : {PrintOptionAll, PrintOptionSelection, PrintOptionCustom}) {
        m_context.PrintOption(option);
        m_info.Update(10);
        EXPECT_EQ("1 to 10, 10", pagesOf(m_info)) << option;
        m_info.Update(0);
        EXPECT_EQ("0 to 0, 0", pagesOf(m_info)) << option;
        m_info.Update(-1);
        EXPECT_EQ("0 to 0, 0", pagesOf(m_info)) << option;
    }
}

TEST_F(PrintInfos, WalkARequestedRangeAsFarAsTheDocumentGoes) {
    struct Case {
        int pages;
        int from;
        int to;
        const char* expected;
    };
    const Case cases[] = {
        {10, 5, 2, "5 to 2, 4"}, {3, 7, 9, "3 to 3, 1"},    {0, 5, 2, "0 to 0, 0"},     {10, 2, 5, "2 to 5, 4"},
        {10, 0, 0, "0 to 0, 0"}, {10, -3, 2, "-3 to 2, 6"}, {10, 1, 99, "1 to 10, 10"},
    };
    m_context.PrintOption(PrintOptionPages);
    for (const Case& c : cases) {
        m_info.Update(c.pages);
        m_context.FromPage(c.from);
        m_context.ToPage(c.to);
        EXPECT_EQ(c.expected, pagesOf(m_info)) << c.pages << ": " << c.from << " to " << c.to;
    }
}

TEST_F(PrintInfos, CountThePagesThatAPrintableWroteByItself) {
    m_info.m_pagesCount = 4;
    EXPECT_TRUE(m_info.IsAnythingToPrint());
    EXPECT_EQ(4, m_info.TotalPageCount());
    EXPECT_EQ("1 to 4, 4", pagesOf(m_info));
}

TEST_F(PrintInfos, MeasureInLogicalInchesWhateverTheDevice) {
    for (const Sheet& sheet : kSheets) {
        SheetDevice device(sheet);
        m_info.PrepareDCAndPrintArea(true, device.dc(), CRect(7, 8, 9, 10));
        EXPECT_EQ(MM_ANISOTROPIC, device.dc()->GetMapMode());
        EXPECT_EQ(CSize(96, 96), device.dc()->GetWindowExt()) << sheet.dpi;
        EXPECT_EQ(CSize(sheet.dpi, sheet.dpi), device.dc()->GetViewportExt()) << sheet.dpi;
        EXPECT_EQ(CRect(0, 0, 794, 1123), m_info.PrintAreaInObjectUnits()) << sheet.dpi;
    }
}

TEST_F(PrintInfos, TakeBothResolutionsOfTheDevice) {
    SheetDevice device({0, 720, 720});
    device.setResolution(72, 144);
    m_info.PrepareDCAndPrintArea(true, device.dc(), CRect());
    EXPECT_EQ(CRect(0, 0, 960, 480), m_info.PrintAreaInObjectUnits());
}

TEST_F(PrintInfos, BeginTheAreaInLogicalInchesAtTheEdgeOfTheSheet) {
    SheetDevice device(kSheets[1]);
    device.dc()->SetWindowOrg(50, 70);
    device.dc()->SetViewportOrg(300, 600);
    m_info.PrepareDCAndPrintArea(true, device.dc(), CRect());
    EXPECT_EQ(CPoint(50, 70), device.dc()->GetWindowOrg());
    EXPECT_EQ(CRect(CPoint(50 - 96, 70 - 192), CSize(794, 1123)), m_info.PrintAreaInObjectUnits());
}

TEST_F(PrintInfos, FitTheWidthOfAnObjectToTheSheetWithOneScale) {
    for (const Sheet& sheet : kSheets) {
        SheetDevice device(sheet);
        m_info.PrepareDCAndPrintArea(false, device.dc(), CRect(30, 40, 430, 50));
        EXPECT_EQ(CSize(400, 400), device.dc()->GetWindowExt()) << sheet.dpi;
        EXPECT_EQ(CSize(sheet.width, sheet.width), device.dc()->GetViewportExt()) << sheet.dpi;
        EXPECT_EQ(CRect(0, 0, 400, 566), m_info.PrintAreaInObjectUnits()) << sheet.dpi;
    }
}

TEST_F(PrintInfos, BeginTheFittedAreaAtTheWindowOrigin) {
    SheetDevice device(kScreenSheet);
    device.dc()->SetWindowOrg(50, 70);
    device.dc()->SetViewportOrg(10, 20);
    m_info.PrepareDCAndPrintArea(false, device.dc(), CRect(0, 0, 397, 1));
    EXPECT_EQ(CPoint(50, 70), device.dc()->GetWindowOrg());
    EXPECT_EQ(CPoint(50, 70), m_info.PrintAreaInObjectUnits().TopLeft());
    EXPECT_NEAR(397, m_info.PrintAreaInObjectUnits().Width(), 1);
    EXPECT_NEAR(562, m_info.PrintAreaInObjectUnits().Height(), 1);
}

TEST_F(PrintInfos, LeaveTheMappingAloneForAnObjectAsWideAsTheSheet) {
    SheetDevice device(kScreenSheet);
    device.dc()->SetMapMode(MM_LOMETRIC);
    device.dc()->SetWindowOrg(50, 70);
    m_info.PrepareDCAndPrintArea(false, device.dc(), CRect(100, 0, 100 + kScreenSheet.width, 1));
    EXPECT_EQ(MM_LOMETRIC, device.dc()->GetMapMode());
    EXPECT_EQ(CRect(0, 0, kScreenSheet.width, kScreenSheet.height), m_info.PrintAreaInObjectUnits());
}

TEST_F(PrintInfos, GiveTheSameAreaWhenAPageIsPreparedTwice) {
    for (const bool useLogicalInches : {false, true}) {
        SheetDevice device(kSheets[2]);
        m_info.PrepareDCAndPrintArea(useLogicalInches, device.dc(), CRect(0, 0, 400, 300));
        const CRect once = m_info.PrintAreaInObjectUnits();
        m_info.PrepareDCAndPrintArea(useLogicalInches, device.dc(), CRect(0, 0, 400, 300));
        EXPECT_EQ(once, m_info.PrintAreaInObjectUnits()) << useLogicalInches;
    }
}

TEST_F(PrintInfos, TakeAnObjectWithItsEdgesChangedRoundAsItIs) {
    SheetDevice device(kScreenSheet);
    m_info.PrepareDCAndPrintArea(false, device.dc(), CRect(430, 40, 33, 50));
    EXPECT_EQ(CSize(-397, -397), device.dc()->GetWindowExt());
    EXPECT_EQ(CSize(794, 794), device.dc()->GetViewportExt());
    EXPECT_EQ(CPoint(0, 0), m_info.PrintAreaInObjectUnits().TopLeft());
    EXPECT_EQ(-397, m_info.PrintAreaInObjectUnits().Width());
    EXPECT_NEAR(-562, m_info.PrintAreaInObjectUnits().Height(), 1);
}

TEST_F(PrintInfos, SurviveAnObjectWithoutWidth) {
    SheetDevice device(kScreenSheet);
    m_info.PrepareDCAndPrintArea(false, device.dc(), CRect(5, 5, 5, 5));
    EXPECT_EQ(CPoint(0, 0), m_info.PrintAreaInObjectUnits().TopLeft());
    EXPECT_GT(m_info.PrintAreaInObjectUnits().Width(), 0);
}
