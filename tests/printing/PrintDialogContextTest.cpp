#include <OrtinControls/PrintDialogContext.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "support/ImportPatch.h"
#include "support/Resources.h"

namespace {

std::string S_deleted;

BOOL WINAPI noteDeletedContext(HDC dc) {
    S_deleted += std::to_string(reinterpret_cast<ULONG_PTR>(dc)) + ' ';
    return TRUE;
}

HDC handle(ULONG_PTR number) {
    return reinterpret_cast<HDC>(number);
}

class PrintDialogContexts : public testing::Test {
protected:
    PrintDialogContexts() { takeDeleted(); }

    static std::string takeDeleted() { return std::exchange(S_deleted, {}); }

    support::ImportPatch m_deleteDC{::GetModuleHandleW(L"OrtinControls.dll"), "gdi32.dll", "DeleteDC",
                                    noteDeletedContext};
};

} // namespace

TEST_F(PrintDialogContexts, BeginWithoutAPrinterAndAskForAllPages) {
    const PrintDialogContext context;
    EXPECT_EQ(nullptr, context.PrinterDC());
    EXPECT_TRUE(context.PrinterPortName().IsEmpty());
    EXPECT_TRUE(context.PrinterName().IsEmpty());
    EXPECT_EQ(1, context.FromPage());
    EXPECT_EQ(1, context.ToPage());
    EXPECT_EQ(0U, context.CustomPrintOptionId());
    EXPECT_EQ(PrintOptionAll, context.PrintOption());
    EXPECT_FALSE(context.FitToPageArea());
}

TEST_F(PrintDialogContexts, GiveBackWhatTheyWereGiven) {
    PrintDialogContext context;
    context.PrinterPortName(L"LPT1:");
    context.PrinterName(L"Drukarka główna");
    context.FromPage(-7);
    context.ToPage(9);
    context.CustomPrintOptionId(0xFFFFFFFF);
    context.PrintOption(PrintOptionCustom);
    context.FitToPageArea(true);
    EXPECT_STREQ(L"LPT1:", context.PrinterPortName());
    EXPECT_STREQ(L"Drukarka główna", context.PrinterName());
    EXPECT_EQ(-7, context.FromPage());
    EXPECT_EQ(9, context.ToPage());
    EXPECT_EQ(0xFFFFFFFFU, context.CustomPrintOptionId());
    EXPECT_EQ(PrintOptionCustom, context.PrintOption());
    EXPECT_TRUE(context.FitToPageArea());
}

TEST_F(PrintDialogContexts, NumberTheirOptionsAsBits) {
    EXPECT_EQ(1, PrintOptionAll);
    EXPECT_EQ(2, PrintOptionPages);
    EXPECT_EQ(4, PrintOptionSelection);
    EXPECT_EQ(256, PrintOptionCustom);
}

TEST_F(PrintDialogContexts, DeleteTheHeldContextWhenTheyGetAnother) {
    PrintDialogContext context;
    context.PrinterDC(handle(11));
    EXPECT_EQ("", takeDeleted());
    context.PrinterDC(handle(12));
    EXPECT_EQ("11 ", takeDeleted());
    EXPECT_EQ(handle(12), context.PrinterDC());
    context.PrinterDC(nullptr);
    EXPECT_EQ("12 ", takeDeleted());
    context.PrinterDC(handle(13));
    EXPECT_EQ("", takeDeleted());
}

TEST_F(PrintDialogContexts, DeleteTheHeldContextEvenWhenTheyGetTheSameAgain) {
    PrintDialogContext context;
    context.PrinterDC(handle(11));
    context.PrinterDC(handle(11));
    EXPECT_EQ("11 ", takeDeleted());
    EXPECT_EQ(handle(11), context.PrinterDC());
}

TEST_F(PrintDialogContexts, DeleteTheHeldContextWhenTheyEnd) {
    {
        PrintDialogContext context;
        context.PrinterDC(handle(11));
    }
    EXPECT_EQ("11 ", takeDeleted());
    { const PrintDialogContext withoutPrinter; }
    EXPECT_EQ("", takeDeleted());
}

TEST_F(PrintDialogContexts, ShareOneHandleWithTheirCopies) {
    {
        PrintDialogContext context;
        context.PrinterDC(handle(11));
        context.PrinterName(L"Drukarka");
        context.FromPage(3);
        const PrintDialogContext copy(context);
        EXPECT_EQ(handle(11), copy.PrinterDC());
        EXPECT_STREQ(L"Drukarka", copy.PrinterName());
        EXPECT_EQ(3, copy.FromPage());
        EXPECT_EQ("", takeDeleted());
    }
    EXPECT_EQ("11 11 ", takeDeleted());
}

TEST_F(PrintDialogContexts, ForgetTheHeldContextWhenTheyAreAssigned) {
    {
        PrintDialogContext context;
        context.PrinterDC(handle(11));
        PrintDialogContext other;
        other.PrinterDC(handle(12));
        other.PrintOption(PrintOptionSelection);
        context = other;
        EXPECT_EQ("", takeDeleted());
        EXPECT_EQ(handle(12), context.PrinterDC());
        EXPECT_EQ(PrintOptionSelection, context.PrintOption());
    }
    EXPECT_EQ("12 12 ", takeDeleted());
}

TEST(PrintDialogContextHandles, OfAThousandDialogsAreAllFreed) {
    const std::size_t before = support::gdiHandleCount();
    for (int round = 0; round < 1000; ++round) {
        PrintDialogContext context;
        context.PrinterDC(::CreateCompatibleDC(nullptr));
        context.PrinterDC(::CreateCompatibleDC(nullptr));
    }
    EXPECT_EQ(before, support::gdiHandleCount());
}
