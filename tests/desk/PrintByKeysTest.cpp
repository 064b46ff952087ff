#include <OrtinFoundation/StringTools.h>

#include <sstream>

#include "../printing/PrinterOutput.h"
#include "DeskProcess.h"
#include "PrintedInstruments.h"
#include "support/Pump.h"
#include "support/RealInput.h"

namespace {

const std::wstring Title = L"Notowania";
constexpr int ZoomOutId = 101;
constexpr int ZoomInId = 102;
constexpr int FitWidthId = 103;
constexpr int FromId = 104;
constexpr int ToId = 105;
constexpr int FirstPartId = 110;
constexpr int PagesId = 100;
constexpr int DownBarId = 107;
constexpr int AcrossBarId = 108;
constexpr int StatusPageId = 204;

std::string instrumentsOf(int count) {
    std::ostringstream csv;
    csv << "Symbol,Name,Sector,Price,PriceEarnings,DividendYield,EarningsPerShare,Low52Weeks,High52Weeks,MarketCap\n";
    for (int row = 0; row < count; ++row)
        csv << 'S' << row << ",Firma,Branża,100.5,60,0.02,3.5,50,200,1000000000\n";
    return csv.str();
}

class PrintByKeys : public DeskOnScreen {
protected:
    PrintByKeys() {
        std::filesystem::remove(output.pdfOf(Title));
        std::filesystem::remove(output.pdfOf(Title).replace_extension(L".txt"));
    }

    /// The dialog with this title once it has come to rest and can be typed into.
    HWND dialog(const wchar_t* title) const {
        HWND found = nullptr;
        EXPECT_TRUE(eventually([&] {
            found = ::FindWindowW(nullptr, title);
            return found && ::IsWindowVisible(found) && ::GetForegroundWindow() == found;
        })) << title;
        settle();
        return found;
    }
    HWND openPreview() const {
        support::chord({VK_CONTROL, VK_SHIFT, 'P'});
        return dialog(L"Podgląd wydruku");
    }
    static bool isOpen(const wchar_t* title) { return ::FindWindowW(nullptr, title) != nullptr; }
    /// Types a page into the field that "od" and "do" name.
    void typePage(WORD mnemonic, const wchar_t* page) const {
        support::chord({VK_MENU, mnemonic});
        support::typeText(page);
        settle();
    }
    /// The numbers of the printed pages in their order.
    std::string printedPages() const {
        std::string numbers;
        for (const std::wstring& page : output.pagesOf(Title)) {
            const std::size_t at = page.find(L"Strona ");
            numbers += (numbers.empty() ? "" : " ") +
                       (at == std::wstring::npos ? "?" : std::to_string(std::stoi(page.substr(at + 7))));
        }
        return numbers;
    }

    PrinterOutput output;
    PrintedInstruments printed;
};

} // namespace

TEST_F(PrintByKeys, ARangeThatRunsBackwardsIsPrintedBackwards) {
    start(printed.arguments);
    support::chord({VK_CONTROL, 'P'});
    dialog(L"Drukuj");
    typePage('O', L"4");
    typePage('D', L"2");
    support::typeKey(VK_RETURN);
    EXPECT_EQ(printedPages(), "4 3 2");
    EXPECT_TRUE(eventually([&] { return !isOpen(L"Drukuj") && ::IsWindowEnabled(desk()); }));
}

TEST_F(PrintByKeys, ABadRangeKeepsTheDialogAndWhatWasTyped) {
    start(printed.arguments);
    support::chord({VK_CONTROL, 'P'});
    const HWND dialogWindow = dialog(L"Drukuj");
    typePage('O', L"2");
    typePage('D', L"999");
    support::typeKey(VK_RETURN);
    settle();
    ASSERT_TRUE(isOpen(L"Drukuj"));
    EXPECT_EQ(textOf(::GetDlgItem(dialogWindow, FromId)), L"2");
    EXPECT_EQ(textOf(::GetDlgItem(dialogWindow, ToId)), L"999");
    EXPECT_EQ(::SendDlgItemMessageW(dialogWindow, FirstPartId + 1, BM_GETCHECK, 0, 0), BST_CHECKED);
    // The wrong field has the focus with its text selected: what is typed replaces it.
    support::typeText(L"3");
    support::typeKey(VK_RETURN);
    EXPECT_EQ(printedPages(), "2 3");
}

TEST_F(PrintByKeys, AClickOnTheStatusWindowsCancelEndsAPrintOfManyRows) {
    start({L"--theme", L"black", L"--instruments", m_folder.write(L"many.csv", instrumentsOf(50'000)).wstring()});
    support::chord({VK_CONTROL, 'P'});
    dialog(L"Drukuj");
    support::typeKey(VK_RETURN);
    HWND status = nullptr;
    ASSERT_TRUE(eventually([&] {
        status = ::FindWindowW(nullptr, L"Drukowanie");
        return status && textOf(::GetDlgItem(status, StatusPageId)).starts_with(L"Strona ");
    }));
    EXPECT_FALSE(::IsWindowEnabled(desk()));
    const double bright = pixelsOf(status).shareBrighterThan(0x90);
    EXPECT_GT(bright, 0) << "the texts";
    EXPECT_LT(bright, 0.1) << "and nothing else is light in the black theme";
    const HWND cancel = ::GetDlgItem(status, IDCANCEL);
    support::click(onScreen(cancel, scaled(20), scaled(10)));
    EXPECT_TRUE(eventually([&] { return !::IsWindow(status) && ::IsWindowEnabled(desk()); }));
    EXPECT_FALSE(output.has(Title));

    // The desk is as it was, and the next document is the only one that comes out.
    support::chord({VK_CONTROL, 'P'});
    dialog(L"Drukuj");
    typePage('O', L"1");
    typePage('D', L"2");
    support::typeKey(VK_RETURN);
    EXPECT_EQ(printedPages(), "1 2");
}

TEST_F(PrintByKeys, EscapePrintsNothingAndGivesTheFocusBackToTheRows) {
    start();
    support::chord({VK_CONTROL, 'P'});
    dialog(L"Drukuj");
    support::typeKey(VK_ESCAPE);
    EXPECT_TRUE(eventually([&] { return !isOpen(L"Drukuj"); }));
    EXPECT_EQ(copiedSymbols(), "S00");
    EXPECT_FALSE(output.has(Title));
}

TEST_F(PrintByKeys, TheVisibleAreaAndTheSelectionAreOffered) {
    start();
    support::chord({VK_CONTROL, 'A'});
    support::chord({VK_CONTROL, 'P'});
    const HWND dialogWindow = dialog(L"Drukuj");
    EXPECT_TRUE(::IsWindowEnabled(::GetDlgItem(dialogWindow, FirstPartId + 2)));
    EXPECT_EQ(textOf(::GetDlgItem(dialogWindow, FirstPartId + 3)), L"Widoczny obszar");
    support::chord({VK_MENU, 'Z'});
    support::typeKey(VK_RETURN);
    const std::vector<std::wstring> pages = output.pagesOf(Title);
    EXPECT_NE(pages.front().find(L"wiersze 1–60 z 60"), std::wstring::npos);
    EXPECT_NE(pages.front().find(L"S00"), std::wstring::npos);
    EXPECT_NE(pages.back().find(L"S59"), std::wstring::npos);
}

TEST_F(PrintByKeys, TheVisibleAreaIsTheRowsInViewAlone) {
    start();
    support::chord({VK_CONTROL, 'P'});
    const HWND choice = ::GetDlgItem(dialog(L"Drukuj"), FirstPartId + 3);
    support::click(onScreen(choice, 5, 5));
    EXPECT_TRUE(eventually([&] { return ::SendMessageW(choice, BM_GETCHECK, 0, 0) == BST_CHECKED; }));
    RECT view{};
    ::GetClientRect(body(), &view);
    const int lastInView = view.bottom / rowHeight();
    support::typeKey(VK_RETURN);
    const std::vector<std::wstring> pages = output.pagesOf(Title);
    ASSERT_EQ(pages.size(), 1U);
    const auto shows = [&](int row) {
        const std::wstring number = std::to_wstring(row);
        return pages.front().find(L"S" + std::wstring(2 - number.size(), L'0') + number) != std::wstring::npos;
    };
    EXPECT_NE(pages.front().find(L"widoczny obszar"), std::wstring::npos);
    EXPECT_TRUE(shows(0));
    EXPECT_TRUE(shows(lastInView));
    EXPECT_FALSE(shows(lastInView + 1));
}

TEST_F(PrintByKeys, ASelectionOfOneCellIsNotOffered) {
    start();
    support::chord({VK_CONTROL, 'P'});
    EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(dialog(L"Drukuj"), FirstPartId + 2)));
    support::typeKey(VK_ESCAPE);
}

TEST_F(PrintByKeys, ThePreviewIsPrintedWithItsRange) {
    start(printed.arguments);
    openPreview();
    typePage('O', L"3");
    typePage('D', L"2");
    support::typeKey(VK_RETURN);
    support::chord({VK_MENU, 'R'});
    dialog(L"Drukuj");
    support::typeKey(VK_RETURN);
    EXPECT_EQ(printedPages(), "3 2");
}

TEST_F(PrintByKeys, ThePreviewStopsRowsThatRunByThemselvesWhereTheyAre) {
    constexpr auto AWhile = std::chrono::milliseconds(400);
    start(printed.arguments);
    const support::Pixels atTheTop = pixelsOf(body());
    support::typeKey(VK_F6);
    EXPECT_TRUE(eventually([&] { return pixelsOf(body()) != atTheTop; }));
    openPreview();
    support::typeKey(VK_ESCAPE);
    EXPECT_TRUE(eventually([&] { return !isOpen(L"Podgląd wydruku") && ::IsWindowEnabled(desk()); }));
    settle();
    const support::Pixels stopped = pixelsOf(body());
    EXPECT_NE(stopped, atTheTop);
    support::pumpFor(AWhile);
    EXPECT_EQ(stopped, pixelsOf(body()));
    support::typeKey(VK_F6);
    EXPECT_TRUE(eventually([&] { return pixelsOf(body()) != stopped; })) << "they run on from there";
}

TEST_F(PrintByKeys, CtrlAndTheWheelChangeTheScaleOfThePreview) {
    start(printed.arguments);
    const HWND pages = ::GetDlgItem(openPreview(), PagesId);
    const support::Pixels before = pixelsOf(pages);
    {
        const support::HeldKey control(VK_CONTROL);
        support::turnWheel(onScreen(pages, scaled(200), scaled(200)), WHEEL_DELTA);
    }
    EXPECT_TRUE(eventually([&] { return pixelsOf(pages) != before; }));
    support::typeKey(VK_ESCAPE);
    EXPECT_TRUE(eventually([&] { return !isOpen(L"Podgląd wydruku") && ::IsWindowEnabled(desk()); }));
}

TEST_F(PrintByKeys, TheBarsOfThePreviewMoveItsPagesUnderTheMouse) {
    start(printed.arguments);
    const HWND preview = openPreview();
    const HWND pages = ::GetDlgItem(preview, PagesId);
    EXPECT_FALSE(::IsWindowVisible(::GetDlgItem(preview, AcrossBarId))) << "the page is as wide as the window";
    support::click(onScreen(::GetDlgItem(preview, ZoomInId), 5, 5));
    EXPECT_TRUE(eventually([&] { return ::IsWindowVisible(::GetDlgItem(preview, AcrossBarId)); }));
    for (const int id : {DownBarId, AcrossBarId}) {
        const HWND bar = ::GetDlgItem(preview, id);
        support::turnWheel(onScreen(pages, scaled(200), scaled(200)), WHEEL_DELTA); // hides the buttons
        settle();
        const support::Pixels before = pixelsOf(pages);
        const support::Pixels track = pixelsOf(bar);
        const POINT start = onScreen(bar, scaled(7), scaled(7));
        const POINT end = onScreen(bar, track.width() - scaled(7), track.height() - scaled(7));
        drag(start, end);
        EXPECT_TRUE(eventually([&] { return pixelsOf(pages) != before && pixelsOf(bar) != track; })) << id;
        drag(end, start);
        EXPECT_TRUE(eventually([&] { return pixelsOf(pages) == before; })) << id;
    }
    support::click(onScreen(::GetDlgItem(preview, FitWidthId), 5, 5));
    EXPECT_TRUE(eventually([&] { return !::IsWindowVisible(::GetDlgItem(preview, AcrossBarId)); }));
}

TEST_F(PrintByKeys, APageOfThePreviewIsAsWideAsTheWindowWhateverItsScaleWas) {
    start(printed.arguments);
    const HWND preview = openPreview();
    const HWND pages = ::GetDlgItem(preview, PagesId);
    support::turnWheel(onScreen(pages, scaled(200), scaled(200)), WHEEL_DELTA); // hides the buttons
    settle();
    // The paper over the title, as wide as the page.
    const auto paperWidth = [&] {
        settle();
        const support::Pixels picture = pixelsOf(pages);
        const std::optional<RECT> paper = picture.part({0, 0, picture.width(), 8}).boundsOf(RGB(255, 255, 255));
        return paper ? paper->right - paper->left : 0;
    };
    const int fitted = paperWidth();
    EXPECT_EQ(fitted, pixelsOf(pages).width() - 10);
    for (const int button : {ZoomOutId, ZoomInId}) {
        for (int press = 0; press < 2; ++press) {
            support::click(onScreen(::GetDlgItem(preview, button), 5, 5));
        }
        EXPECT_TRUE(eventually([&] { return paperWidth() != fitted; })) << button;
        support::click(onScreen(::GetDlgItem(preview, FitWidthId), 5, 5));
        EXPECT_TRUE(eventually([&] { return std::abs(paperWidth() - fitted) <= 1; })) << button;
        EXPECT_FALSE(::IsWindowVisible(::GetDlgItem(preview, AcrossBarId))) << button;
    }
}

TEST_F(PrintByKeys, KeysTurnThePagesOfThePreview) {
    start(printed.arguments);
    const HWND preview = openPreview();
    const HWND pages = ::GetDlgItem(preview, PagesId);
    // Without the zoom buttons, which come and go.
    const auto upperPart = [&] {
        const support::Pixels picture = pixelsOf(pages);
        return picture.part({0, 0, picture.width(), picture.height() / 2});
    };
    const support::Pixels atTheTop = upperPart();
    for (const auto& [there, back] : {std::pair(VK_NEXT, VK_PRIOR), std::pair(VK_END, VK_HOME)}) {
        support::typeKey(static_cast<WORD>(there));
        EXPECT_TRUE(eventually([&] { return upperPart() != atTheTop; })) << there;
        support::typeKey(static_cast<WORD>(back));
        EXPECT_TRUE(eventually([&] { return upperPart() == atTheTop; })) << back;
    }
    typePage('O', L"34");
    support::typeKey(VK_HOME);
    support::typeText(L"12");
    settle();
    EXPECT_EQ(textOf(::GetDlgItem(preview, FromId)), L"1234") << "in a field they move the caret";
}

TEST_F(PrintByKeys, NothingBesideThePagesOfThePreviewIsLightInTheBlackTheme) {
    start({L"--theme", L"black"});
    const HWND preview = openPreview();
    support::click(onScreen(::GetDlgItem(preview, ZoomInId), 5, 5));
    EXPECT_TRUE(eventually([&] { return ::IsWindowVisible(::GetDlgItem(preview, AcrossBarId)); }));
    support::moveMouse(onScreen(preview, scaled(20), scaled(40)));
    settle();
    for (const int id : {DownBarId, AcrossBarId})
        EXPECT_EQ(pixelsOf(::GetDlgItem(preview, id)).shareBrighterThan(0x90), 0) << id;
    const HWND pages = ::GetDlgItem(preview, PagesId);
    RECT whole{};
    RECT client{};
    ::GetWindowRect(pages, &whole);
    ::GetClientRect(pages, &client);
    EXPECT_NE(::GetWindowLongW(pages, GWL_STYLE) & (WS_VSCROLL | WS_HSCROLL), 0) << "they scroll";
    EXPECT_EQ(client.right, whole.right - whole.left) << "and yet have no bar of the system";
    EXPECT_EQ(client.bottom, whole.bottom - whole.top);
}

TEST_F(PrintByKeys, ABadRangeInThePreviewPrintsNothingAndKeepsWhatWasTyped) {
    start(printed.arguments);
    const HWND dialogWindow = openPreview();
    typePage('O', L"0");
    support::typeKey(VK_RETURN);
    settle();
    EXPECT_TRUE(isOpen(L"Podgląd wydruku"));
    support::chord({VK_MENU, 'R'});
    settle();
    EXPECT_TRUE(isOpen(L"Podgląd wydruku"));
    EXPECT_FALSE(isOpen(L"Drukuj"));
    EXPECT_EQ(textOf(::GetDlgItem(dialogWindow, FromId)), L"0");
}
