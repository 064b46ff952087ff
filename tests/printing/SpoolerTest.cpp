#include "PrinterOutput.h"
#include "PrintingFixture.h"

using namespace PrintLogText;

namespace {

void writeLine(CDC& dc, const std::wstring& text) {
    LOGFONTW description{};
    description.lfHeight = -16;
    wcscpy(description.lfFaceName, L"Arial");
    CFont font;
    font.CreateFontIndirect(&description);
    CFont* const previous = dc.SelectObject(&font);
    dc.TextOut(96, 96, text.c_str());
    dc.SelectObject(previous);
}

/// Jobs on a real spooler. A page says its number, in Polish.
class RealPrintJobs : public PrintingFixture {
protected:
    RealPrintJobs() {
        PrinterOutput::choose(printer.dialog);
        printable.title = PrinterOutput::newTitle(L"Strony");
        printable.onPrepare = [](CDC& dc, PrintInfo& info) { info.PrepareDCAndPrintArea(true, &dc, CRect()); };
        printable.onPrint = [this](CDC& dc, PrintInfo& info) {
            areas.push_back(info.PrintAreaInObjectUnits());
            writeLine(dc, pageText(info.CurrentPage()));
        };
    }

    static std::wstring pageText(int page) { return L"Gęślą jaźń, strona " + std::to_wstring(page); }

    /// The numbers of the pages as they came out: "1 2 3"; "?" for a page without its text.
    std::string printedPages() const {
        std::string numbers;
        for (const std::wstring& text : output.pagesOf(printable.title)) {
            std::string number = "?";
            for (int page = 1; page <= printable.pages; ++page) {
                number = text.starts_with(pageText(page) + L'\n') ? std::to_string(page) : number;
            }
            numbers += (numbers.empty() ? "" : " ") + number;
        }
        return numbers;
    }

    PrinterOutput output;
    std::vector<CRect> areas;
};

} // namespace

TEST_F(RealPrintJobs, PrintAllPagesOfADocumentInOrder) {
    printable.pages = 4;
    print();
    EXPECT_EQ("1 2 3 4", printedPages());
    EXPECT_TRUE(std::filesystem::exists(output.pdfOf(printable.title)));
    EXPECT_EQ(kBeginning + drawn(1) + drawn(2) + drawn(3) + drawn(4) + kGoodEnd, log.take());
    EXPECT_TRUE(mainWindowIsEnabled());
}

TEST_F(RealPrintJobs, PrintAReversedRangeBackwards) {
    printable.pages = 10;
    askForPages(5, 2);
    print();
    EXPECT_EQ("5 4 3 2", printedPages());
    EXPECT_EQ(kBeginning + drawn(5) + drawn(4) + drawn(3) + drawn(2) + kGoodEnd, log.take());
}

TEST_F(RealPrintJobs, SeeAnA4SheetInLogicalInches) {
    print();
    ASSERT_EQ(3U, areas.size());
    for (const CRect& area : areas) {
        EXPECT_EQ(CPoint(0, 0), area.TopLeft());
        EXPECT_NEAR(8.27 * 96, area.Width(), 96) << "less the printer's own margins";
        EXPECT_NEAR(11.69 * 96, area.Height(), 96);
        EXPECT_EQ(areas.front(), area) << "each page is prepared anew";
    }
    EXPECT_EQ("1 2 3", printedPages());
}

TEST_F(RealPrintJobs, PrintNothingOnceTheyAreCancelled) {
    const std::wstring cancelled = printable.title;
    const RecordingPrintable::Hook draw = printable.onPrint;
    printable.onPrint = [&, draw](CDC& dc, PrintInfo& info) {
        draw(dc, info);
        printable.isAborted = info.CurrentPage() == 2;
    };
    print();
    const std::string lines = log.take();
    EXPECT_EQ(0U, lines.find(kBeginning + drawn(1) + drawn(2) + kCancelled)) << lines;
    printable.isAborted = false;
    printable.onPrint = draw;
    printable.title = PrinterOutput::newTitle(L"Po przerwanym");
    printer.dialog.PrinterDC(PrinterOutput::makeContext()); // not every system takes one on an aborted context
    print();
    EXPECT_EQ("1 2 3", printedPages());
    EXPECT_FALSE(output.has(cancelled)) << "a document before it in the queue";
}

TEST_F(RealPrintJobs, MayBeOnTwoContextsAtATime) {
    MemoryPrinter second;
    PrinterOutput::choose(second.dialog);
    RecordingPrintable inner;
    inner.title = PrinterOutput::newTitle(L"Wewnatrz");
    inner.onPrint = [](CDC& dc, PrintInfo&) { writeLine(dc, L"wewnątrz"); };
    const RecordingPrintable::Hook draw = printable.onPrint;
    printable.onPrint = [&, draw](CDC& dc, PrintInfo& info) {
        draw(dc, info);
        if (info.CurrentPage() == 2) {
            PrintStrategy().PrintObject(second.info, &inner);
        }
    };
    print();
    EXPECT_EQ("1 2 3", printedPages());
    ASSERT_EQ(1U, output.pagesOf(inner.title).size());
    EXPECT_NE(std::wstring::npos, output.pagesOf(inner.title).front().find(L"wewnątrz"));
}
