// Hosts that misbehave while their table is printed, the black and white way, and what a job leaves behind.
#include "NotedBitmaps.h"
#include "PrintableFixture.h"

#include <stdexcept>

#include "support/Capture.h"
#include "support/Resources.h"

namespace {

class PrintingHost : public PrintableFixture {
protected:
    /// A whole run, as the job driver makes it.
    void print(CDC* dc, EPrintOption option = PrintOptionAll) {
        table.OnPreparePrinting(&info);
        begin(dc, option);
        for (int page = 1; page <= info.TotalPageCount(); ++page) {
            info.SetCurrentPage(page);
            table.OnPrepareDC(dc, &info);
            table.OnPrepareDC(dc, &info);
            table.OnPrint(dc, &info);
        }
        table.OnEndPrinting(dc, &info);
    }

    const std::vector<std::string> callbacks{"GetSelectedItemStart", "GetSelectedItem", "GetSelectedPositionStartEnd",
                                             "DrawPrintRequestedItems", "DrawItem"};
};

int S_contrast;

void noteContrast(CXTPImageManager*, CDC&, const CRect&, int contrast) {
    S_contrast = contrast;
}

/// What is on the page after a run in black and white.
class BlackWhite : public PrintingHost {
protected:
    BlackWhite() {
        dc.Attach(paper.dc());
        table.m_blackWhitePrinting = true;
        table.m_blackWhiteContrast = 1000;
    }
    ~BlackWhite() override { dc.Detach(); }

    SheetDevice device{kFiveRows};
    support::MemoryDevice paper{420, 120, RGB(0, 0, 200)};
    CDC dc;
};

} // namespace

TEST_F(PrintingHost, MayDeleteAllRowsAtAnyCall) {
    SheetDevice device(kFiveRows);
    for (const std::string& misbehaving : callbacks) {
        for (const EPrintOption option : {PrintOptionAll, PrintOptionSelection, PrintOptionCustom}) {
            addRows(10);
            handler.anchor = 2;
            handler.caret = 8;
            int drawnWithoutRows = 0;
            handler.onCall = [&](const std::string& callback) {
                drawnWithoutRows += callback == "DrawItem" && table.GetItemCount() == 0 ? 1 : 0;
                if (callback == misbehaving && table.GetItemCount() > 0) {
                    table.DeleteAllItems();
                }
            };
            print(device.dc(), option);
            handler.onCall = nullptr;
            EXPECT_EQ(0, drawnWithoutRows) << misbehaving << " deletes, choice " << option;
            EXPECT_EQ(0, table.GetItemCount()) << misbehaving << " was not called, choice " << option;
        }
    }
}

TEST_F(PrintingHost, ThatDeletesRowsWhileDrawingIsAskedForNoneBehindTheEnd) {
    SheetDevice device(kFiveRows);
    addRows(5);
    begin(device.dc(), PrintOptionAll);
    handler.onCall = [&](const std::string& callback) {
        if (callback == "DrawItem") {
            table.DeleteItem(table.GetItemData(table.GetItemCount() - 1));
        }
    };
    EXPECT_EQ("DrawItem(0,10,30) DrawItem(1,30,50) DrawItem(2,50,70)", printPage(device.dc(), 1));
    EXPECT_EQ(2, table.GetItemCount());
}

TEST_F(PrintingHost, ThatAddsRowsWhileDrawingPrintsNoMoreOfThem) {
    SheetDevice device(kFiveRows);
    addRows(2);
    begin(device.dc());
    handler.onCall = [&](const std::string& callback) {
        if (callback == "DrawItem") {
            table.InsertItems({{900 + table.GetItemCount(), 20}}, table.GetItemCount(), 0);
        }
    };
    EXPECT_EQ("DrawItem(0,10,30) DrawItem(1,30,50)", printPage(device.dc(), 1));
}

TEST_F(PrintingHost, MayDestroyTheWindowAtAnyCall) {
    SheetDevice device(kFiveRows);
    for (const std::string& misbehaving : callbacks) {
        ReachablePrintable lost;
        lost.Create(78, &window, false);
        lost.SetTableHandler(&handler);
        lost.MoveWindow(0, 0, 400, 200);
        lost.InsertItems({{1, 20}, {2, 20}, {3, 20}}, 0, 0);
        handler.onCall = [&](const std::string& callback) {
            if (callback == misbehaving) {
                lost.DestroyWindow();
            }
        };
        context.PrintOption(PrintOptionSelection);
        handler.anchor = 0;
        handler.caret = 2;
        lost.OnPreparePrinting(&info);
        lost.OnBeginPrinting(device.dc(), &info);
        info.SetCurrentPage(1);
        lost.OnPrepareDC(device.dc(), &info);
        lost.OnPrint(device.dc(), &info);
        lost.OnEndPrinting(device.dc(), &info);
        EXPECT_GT(info.TotalPageCount(), 0) << misbehaving;
        EXPECT_EQ(nullptr, lost.GetSafeHwnd()) << misbehaving;
        handler.onCall = nullptr;
        handler.SetTableView(&table);
    }
}

TEST_F(PrintingHost, ThatThrowsEndsThePageOnly) {
    SheetDevice device(kFiveRows);
    addRows(10);
    begin(device.dc());
    table.m_blackWhitePrinting = true;
    printPage(device.dc(), 1);
    const std::size_t before = support::gdiHandleCount();
    handler.onCall = [](const std::string& callback) {
        if (callback == "DrawItem") {
            throw std::runtime_error("no more");
        }
    };
    EXPECT_THROW(printPage(device.dc(), 1), std::runtime_error);
    handler.onCall = nullptr;
    EXPECT_EQ(before, support::gdiHandleCount());
    EXPECT_NE("", printPage(device.dc(), 2));
}

TEST_F(BlackWhite, CoversThePageWithTheWhitePicture) {
    addRows(3);
    print(&dc);
    const support::Pixels pixels = paper.pixels();
    EXPECT_EQ(RGB(255, 255, 255), pixels.onlyColour({10, 10, 410, 110}));
    EXPECT_EQ(400U * 100U, pixels.count(RGB(255, 255, 255))) << "the margins stay as they were";
}

TEST_F(BlackWhite, DrawsTheRowsOnThePageItself) {
    addRows(1);
    handler.drawMore = [this](CDC& target, int, const CRect&) { EXPECT_EQ(&dc, &target); };
    begin(&dc);
    EXPECT_EQ("DrawItem(0,10,30)", printPage(&dc, 1));
}

TEST_F(BlackWhite, KeepsOnePictureForAllPagesOfOneSize) {
    addRows(40);
    const NotedBitmaps noted;
    print(&dc);
    print(&dc);
    EXPECT_EQ(1, noted.count);
    table.m_marginTop = 20;
    print(&dc);
    EXPECT_EQ(2, noted.count);
}

TEST_F(BlackWhite, ClampsTheContrastToAByte) {
    addRows(1);
    begin(&dc);
    const support::ImportPatch patch(::GetModuleHandleW(L"OrtinControls.dll"), "OrtinXtp.dll",
                                     "_ZN16CXTPImageManager16BlackWhiteBitmapER3CDCRK5CRecti", noteContrast);
    for (const auto& [asked, used] : {std::pair(-1, 0), std::pair(0, 0), std::pair(255, 255), std::pair(256, 255)}) {
        table.m_blackWhiteContrast = asked;
        printPage(&dc, 1);
        EXPECT_EQ(used, S_contrast);
    }
}

TEST_F(BlackWhite, WithoutMemoryForThePicturePrintsTheRows) {
    addRows(3);
    NotedBitmaps noted;
    noted.noMemory = true;
    print(&dc);
    EXPECT_EQ(RecordingHandler::colourOf(1), paper.pixels().onlyColour({10, 10, 410, 30}));
}

TEST_F(BlackWhite, OfASheetThatTheMarginsHaveEatenPrintsTheRows) {
    addRows(3);
    table.m_marginTop = 200;
    const NotedBitmaps noted;
    begin(&dc);
    EXPECT_NE("", printPage(&dc, info.TotalPageCount()));
    EXPECT_EQ(0, noted.count);
}

TEST_F(BlackWhite, AThousandJobsLeaveNoHandleBehind) {
    addRows(10);
    const auto printJobs = [this](int jobs) {
        for (int job = 0; job < jobs; ++job) {
            table.m_marginTop = 10 + job % 2; // another picture each time
            table.m_blackWhitePrinting = job % 4 < 2;
            print(&dc, job % 3 == 0 ? PrintOptionCustom : PrintOptionAll);
        }
        support::pumpUntilIdle(); // the table on the screen paints, too
    };
    printJobs(12); // one of each kind, for what the system makes at the first time and keeps
    const std::size_t before = support::gdiHandleCount();
    printJobs(1000);
    EXPECT_EQ(before, support::gdiHandleCount());
}
