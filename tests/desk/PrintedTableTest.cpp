#include <OrtinFoundation/StringTools.h>

#include <cmath>
#include <sstream>

#include "../printing/PrinterOutput.h"
#include "DeskProcess.h"
#include "DeskWindow.h"
#include "PrintedInstruments.h"
#include "Printers.h"

namespace {

const std::wstring Title = L"Notowania";

struct PageOfRows {
    std::size_t first;
    std::size_t last;

    bool operator==(const PageOfRows&) const = default;
};

/// Which rows of equal height come on which page: a page ends one row before the row that would fill it, only that row
/// counts for the next page, and the last row of all counts for none.
std::vector<PageOfRows> expectedPages(std::size_t rows, int rowHeight, int room) {
    std::vector<PageOfRows> pages;
    std::size_t first = 0;
    int filled = 0;
    for (std::size_t row = 0; row + 1 < rows; ++row) {
        filled += rowHeight;
        if (filled < room)
            continue;
        pages.push_back({first, row - 2});
        first = row - 1;
        filled = rowHeight;
    }
    pages.push_back({first, rows - 1});
    return pages;
}

/// The pages of a desk of the size that it starts with.
std::vector<PageOfRows> expectedPagesOf(const std::vector<Desk::Instrument>& instruments) {
    Desk::DeskWindow desk({instruments, {}}, {}, {});
    EXPECT_TRUE(desk.open());
    PrintDialogContext context;
    PrinterOutput::choose(context);
    PrintInfoEx info(&context);
    CDC dc;
    dc.Attach(context.PrinterDC());
    desk.table().OnPrepareDC(&dc, &info);
    dc.Detach();
    const auto& quotes = static_cast<const Desk::QuotesHandler&>(*desk.table().GetHandler());
    const Desk::SheetSizes& sizes = quotes.sheetSizes();
    const int room = info.PrintAreaInObjectUnits().Height() - marginAboveRows(sizes) - marginBelowRows(sizes);
    return expectedPages(instruments.size(), sizes.row, room);
}

/// The rows of a page as it was printed: the lines between the header and the page number.
std::vector<std::string> rowsOf(const std::wstring& page) {
    std::istringstream text(OrtinTools::String::WideToUtf8(page));
    std::vector<std::string> rows;
    bool inRows = false;
    for (std::string line; std::getline(text, line);) {
        if (line.find_first_not_of(" \r") == std::string::npos)
            continue;
        if (line.find("Strona ") != std::string::npos)
            break;
        if (inRows)
            rows.push_back(line.substr(line.find_first_not_of(' ')));
        inRows = inRows || line.find("Kapitalizacja") != std::string::npos;
    }
    return rows;
}

bool showsInstrument(const std::string& row, const Desk::Instrument& instrument) {
    return row.starts_with(instrument.symbol + " ");
}

class PrintedTable : public testing::Test {
protected:
    PrintedTable() {
        std::filesystem::remove(output.pdfOf(Title));
        std::filesystem::remove(output.pdfOf(Title).replace_extension(L".txt"));
    }

    DeskRun print(std::vector<std::wstring> more = {}) const {
        std::vector<std::wstring> arguments = printed.arguments;
        arguments.insert(arguments.end(), {L"--print", PrinterOutput::kPrinter});
        arguments.insert(arguments.end(), more.begin(), more.end());
        return runDesk(arguments);
    }

    PrinterOutput output;
    PrintedInstruments printed;
};

} // namespace

TEST_F(PrintedTable, HasEachRowOnTheCountedPage) {
    const DeskRun run = print();
    ASSERT_EQ(run.exitCode, 0) << run.errors;
    const std::vector<std::wstring> pages = output.pagesOf(Title);
    const std::vector<PageOfRows> expected = expectedPagesOf(printed.instruments);
    ASSERT_EQ(pages.size(), expected.size());
    ASSERT_GT(pages.size(), 1u);
    for (std::size_t page = 0; page < pages.size(); ++page) {
        const std::vector<std::string> rows = rowsOf(pages[page]);
        ASSERT_EQ(rows.size(), expected[page].last - expected[page].first + 1) << "page " << page + 1;
        EXPECT_TRUE(showsInstrument(rows.front(), printed.instruments[expected[page].first])) << rows.front();
        EXPECT_TRUE(showsInstrument(rows.back(), printed.instruments[expected[page].last])) << rows.back();
    }
}

TEST_F(PrintedTable, HasTitleHeaderAndPageNumberOnEachPage) {
    ASSERT_EQ(print().exitCode, 0);
    const std::vector<std::wstring> pages = output.pagesOf(Title);
    for (std::size_t page = 0; page < pages.size(); ++page) {
        const std::wstring number = L"Strona " + std::to_wstring(page + 1) + L" z " + std::to_wstring(pages.size());
        for (const std::wstring& text : {Title, std::wstring(L"Symbol"), std::wstring(L"Zysk/akcję"), number})
            EXPECT_NE(pages[page].find(text), std::wstring::npos) << "page " << page + 1;
    }
}

TEST_F(PrintedTable, SaysWhereItWentAndAsksNothing) {
    const DeskRun run = print();
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.errors, "");
    EXPECT_NE(run.output.find("Wysłano „Notowania”"), std::string::npos) << run.output;
    EXPECT_NE(run.output.find("do drukarki „PDF”"), std::string::npos) << run.output;
    EXPECT_FALSE(output.pagesOf(Title).empty());
}

TEST_F(PrintedTable, WithoutRowsIsNotPrinted) {
    const TemporaryFolder folder;
    const auto csv = folder.write(L"none.csv", "Symbol,Name,Sector,Price,PriceEarnings,DividendYield,EarningsPerShare,"
                                               "Low52Weeks,High52Weeks,MarketCap\n");
    const DeskRun run = print({L"--instruments", csv.wstring()});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_NE(run.errors.find("Nie ma czego drukować"), std::string::npos) << run.errors;
    EXPECT_FALSE(output.has(Title));
}

TEST_F(PrintedTable, IsPrintedOnceWithPicturesOfThePrinting) {
    const TemporaryFolder folder;
    const DeskRun run = print({L"--shots", folder.file(L"out").wstring()});
    ASSERT_EQ(run.exitCode, 0) << run.errors;
    for (const wchar_t* name : {L"preview-white", L"preview-black", L"print-status", L"print-status-black"})
        EXPECT_FALSE(bytesOf(folder.file(L"out\\" + std::wstring(name) + L".png")).empty());
    const std::string said = "Wysłano „Notowania”";
    EXPECT_NE(run.output.find(said), std::string::npos) << run.output;
    EXPECT_EQ(run.output.find(said), run.output.rfind(said)) << run.output;
    EXPECT_GT(output.pagesOf(Title).size(), 1u);
}

TEST(PrinterForTheScreen, IsAsCoarseAsTheWidthOfThePageAllows) {
    const auto printer = Desk::printerNamed(PrinterOutput::kPrinter);
    ASSERT_TRUE(printer);
    PrintDialogContext usual;
    ASSERT_TRUE(Desk::choosePrinter(usual, *printer));
    const auto caps = [](const PrintDialogContext& context, int index) {
        return ::GetDeviceCaps(context.PrinterDC(), index);
    };
    int before = 0;
    for (const int width : {500, 1066, 1600, 2600}) {
        PrintDialogContext context;
        ASSERT_TRUE(Desk::choosePrinterForScreen(context, *printer, width));
        EXPECT_GE(caps(context, HORZRES), width);
        EXPECT_GE(caps(context, HORZRES), before);
        before = caps(context, HORZRES);
        EXPECT_EQ(std::lround(100.0 * caps(context, VERTRES) / caps(context, HORZRES)),
                  std::lround(100.0 * caps(usual, VERTRES) / caps(usual, HORZRES)))
            << "another shape of the sheet would have other pages";
        std::cout << width << " pixels: " << caps(context, LOGPIXELSX) << " dots in an inch\n";
    }
    PrintDialogContext coarse;
    ASSERT_TRUE(Desk::choosePrinterForScreen(coarse, *printer, 500));
    EXPECT_LT(caps(coarse, LOGPIXELSX), caps(usual, LOGPIXELSX));
}

TEST(PrinterForTheScreen, IsTheUsualOneWhereNoResolutionDoes) {
    PrintDialogContext context;
    ASSERT_TRUE(Desk::choosePrinterForScreen(context, *Desk::printerNamed(PrinterOutput::kPrinter), 1000000));
    PrintDialogContext usual;
    ASSERT_TRUE(Desk::choosePrinter(usual, *Desk::printerNamed(PrinterOutput::kPrinter)));
    EXPECT_EQ(::GetDeviceCaps(context.PrinterDC(), LOGPIXELSX), ::GetDeviceCaps(usual.PrinterDC(), LOGPIXELSX));
}
