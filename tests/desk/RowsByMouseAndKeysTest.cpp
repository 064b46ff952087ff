#include "DeskProcess.h"
#include "support/Pump.h"
#include "support/RealInput.h"

using RowsByMouseAndKeys = DeskOnScreen;

TEST_F(RowsByMouseAndKeys, AClickSelectsARowAndCtrlCCopiesItTabSeparated) {
    start();
    support::click(cell(2, 1));
    EXPECT_EQ(copied(), L"S02\tFirma 02\tBardzo długa nazwa branży numer 02\t102,50\t58,00\t2,00%\t3,50\t"
                        L"50,00 – 200,00\t3,00\u00A0mld\r\n");
}

TEST_F(RowsByMouseAndKeys, ShiftClickSelectsARange) {
    start();
    support::click(cell(2, 1));
    clickWith(VK_SHIFT, cell(5, 1));
    EXPECT_EQ(copiedSymbols(), "S02 S03 S04 S05");
}

TEST_F(RowsByMouseAndKeys, CtrlClickTurnsRowsOnAndOff) {
    start();
    support::click(cell(1, 1));
    clickWith(VK_CONTROL, cell(4, 1));
    clickWith(VK_CONTROL, cell(6, 1));
    clickWith(VK_CONTROL, cell(1, 1));
    EXPECT_EQ(copiedSymbols(), "S04 S06");
}

TEST_F(RowsByMouseAndKeys, ACtrlDragPaintsARange) {
    start();
    const POINT to = cell(4, 1);
    support::moveMouse(cell(2, 1));
    settle();
    {
        const support::HeldKey control(VK_CONTROL);
        support::pressButton();
        support::moveMouse(to);
        support::releaseButton();
    }
    EXPECT_EQ(copiedSymbols(), "S00 S02 S03 S04");
}

TEST_F(RowsByMouseAndKeys, AnArrowMovesByOneRow) {
    start();
    support::click(cell(1, 1));
    support::typeKey(VK_DOWN);
    EXPECT_EQ(copiedSymbols(), "S02");
    support::typeKey(VK_UP);
    support::typeKey(VK_UP);
    EXPECT_EQ(copiedSymbols(), "S00");
}

TEST_F(RowsByMouseAndKeys, ShiftWithAnArrowGrowsTheRange) {
    start();
    support::click(cell(3, 1));
    support::chord({VK_SHIFT, VK_DOWN});
    support::chord({VK_SHIFT, VK_DOWN});
    EXPECT_EQ(copiedSymbols(), "S03 S04 S05");
    support::typeKey(VK_ESCAPE);
    EXPECT_EQ(copiedSymbols(), "S05");
}

TEST_F(RowsByMouseAndKeys, EndAndHomeGoToTheLastAndTheFirstRow) {
    start();
    support::click(cell(1, 1));
    support::typeKey(VK_END);
    EXPECT_EQ(copiedSymbols(), "S59");
    support::typeKey(VK_HOME);
    EXPECT_EQ(copiedSymbols(), "S00");
}

TEST_F(RowsByMouseAndKeys, ASortKeepsTheSelectedInstrumentsSelectedAndTheCaretOnItsOwn) {
    constexpr std::size_t PriceEarnings = 4;
    start();
    support::click(cell(3, 1));
    clickWith(VK_SHIFT, cell(6, 1));
    // Each fifth one has no ratio and comes last; the others turn round.
    support::click(title(PriceEarnings));
    settle();
    EXPECT_EQ(copiedSymbols(), "S06 S04 S03 S05");
    clickAgain(title(PriceEarnings));
    settle();
    EXPECT_EQ(copiedSymbols(), "S03 S04 S06 S05");
    support::typeKey(VK_DOWN);
    EXPECT_EQ(copiedSymbols(), "S07");
}

TEST_F(RowsByMouseAndKeys, ASortKeepsARowTurnedOffWithTheCaretOnIt) {
    constexpr std::size_t PriceEarnings = 4;
    start();
    const POINT rowTurnedOff = cell(2, 1);
    support::click(cell(1, 1));
    clickWith(VK_SHIFT, cell(3, 1));
    clickWith(VK_CONTROL, rowTurnedOff);
    support::click(title(PriceEarnings));
    settle();
    EXPECT_EQ(copiedSymbols(), "S03 S01");
}

TEST_F(RowsByMouseAndKeys, CtrlACopiesEveryRow) {
    start();
    support::click(cell(1, 1));
    support::chord({VK_CONTROL, 'A'});
    const std::string symbols = copiedSymbols();
    EXPECT_EQ(symbols.size(), 60u * 4 - 1);
    EXPECT_TRUE(symbols.starts_with("S00 S01 ") && symbols.ends_with(" S58 S59"));
}

TEST_F(RowsByMouseAndKeys, ARightClickOnASelectedRowKeepsTheSelectionForItsMenu) {
    start();
    support::click(cell(2, 1));
    clickWith(VK_SHIFT, cell(4, 1));
    support::click(cell(3, 1), support::MouseButton::Right);
    support::typeKey(VK_ESCAPE);
    EXPECT_EQ(copiedSymbols(), "S02 S03 S04");
}

TEST_F(RowsByMouseAndKeys, TheMenuKeyScrollsTheCaretRowIntoViewAndOpensItsMenuThere) {
    start();
    support::click(cell(0, 1));
    support::typeKey(VK_END);
    settle();
    const support::Pixels atTheEnd = pixelsOf(body());
    support::turnWheel(cell(3, 1), 100 * WHEEL_DELTA);
    settle();
    ASSERT_NE(pixelsOf(body()), atTheEnd);
    for (void (*const askForMenu)() : {+[] { support::typeKey(VK_APPS); },
                                       +[] {
                                           support::chord({VK_SHIFT, VK_F10});
                                       }}) {
        askForMenu();
        HWND menu = nullptr;
        EXPECT_TRUE(eventually([&] { return (menu = ::FindWindowW(L"#32768", nullptr)) && ::IsWindowVisible(menu); }));
        support::typeKey(VK_ESCAPE);
        EXPECT_TRUE(eventually([&] { return !::IsWindowVisible(menu); }));
        settle();
        EXPECT_EQ(pixelsOf(body()), atTheEnd);
        support::turnWheel(cell(3, 1), 100 * WHEEL_DELTA);
        settle();
    }
}

TEST_F(RowsByMouseAndKeys, ATipShowsTextThatIsCutOff) {
    start();
    const auto windows = [&] {
        int count = 0;
        ::EnumThreadWindows(
            ::GetWindowThreadProcessId(desk(), nullptr),
            [](HWND window, LPARAM parameter) -> BOOL {
                *reinterpret_cast<int*>(parameter) += ::IsWindowVisible(window) ? 1 : 0;
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&count));
        return count;
    };
    support::moveMouse(cell(2, 1));
    support::pumpFor(std::chrono::milliseconds(900));
    EXPECT_EQ(windows(), 1) << "a text that is not cut off needs no tip";
    support::moveMouse(cell(3, 2));
    EXPECT_TRUE(eventually([&] { return windows() == 2; }));
    support::moveMouse(cell(3, 1));
    EXPECT_TRUE(eventually([&] { return windows() == 1; }));
}
