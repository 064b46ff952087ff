#include "core/Commands.h"

#include <gtest/gtest.h>

using namespace Desk;

namespace {

constexpr unsigned int Enter = 0x0D;
constexpr unsigned int F1 = 0x70;
constexpr unsigned int F3 = 0x72;
constexpr unsigned int F8 = 0x77;

constexpr bool Ctrl = true;
constexpr bool Shift = true;

} // namespace

TEST(Commands, CopyingBelongsToTheRows) {
    EXPECT_EQ(commandOf({'C', Ctrl, false, KeyPlace::Rows}), Command::CopyRows);
    EXPECT_EQ(commandOf({'C', Ctrl, Shift, KeyPlace::Rows}), Command::CopyColumn);
    EXPECT_EQ(commandOf({'C', Ctrl, false, KeyPlace::FindBox}), std::nullopt);
    EXPECT_EQ(commandOf({'C', false, false, KeyPlace::Rows}), std::nullopt);
}

TEST(Commands, CtrlASelectsAllOfWhereTheKeysGo) {
    EXPECT_EQ(commandOf({'A', Ctrl, false, KeyPlace::Rows}), Command::SelectAll);
    EXPECT_EQ(commandOf({'A', Ctrl, false, KeyPlace::FindBox}), Command::Find);
}

TEST(Commands, SearchingAndSwitchingGoesFromAnywhere) {
    for (const KeyPlace place : {KeyPlace::Rows, KeyPlace::FindBox, KeyPlace::Elsewhere}) {
        EXPECT_EQ(commandOf({'F', Ctrl, false, place}), Command::Find);
        EXPECT_EQ(commandOf({F3, false, false, place}), Command::FindNext);
        EXPECT_EQ(commandOf({F3, false, Shift, place}), Command::FindPrevious);
        EXPECT_EQ(commandOf({F8, false, false, place}), Command::SwitchTheme);
        EXPECT_EQ(commandOf({F1, false, false, place}), Command::ShowInfo);
    }
    EXPECT_EQ(commandOf({Enter, false, false, KeyPlace::FindBox}), Command::FindNext);
    EXPECT_EQ(commandOf({Enter, false, Shift, KeyPlace::FindBox}), Command::FindPrevious);
    EXPECT_EQ(commandOf({Enter, false, false, KeyPlace::Rows}), std::nullopt);
}

TEST(Commands, PrintingGoesFromAnywhere) {
    for (const KeyPlace place : {KeyPlace::Rows, KeyPlace::FindBox, KeyPlace::Elsewhere}) {
        EXPECT_EQ(commandOf({'P', Ctrl, false, place}), Command::Print);
        EXPECT_EQ(commandOf({'P', Ctrl, Shift, place}), Command::Preview);
        EXPECT_EQ(commandOf({'P', false, false, place}), std::nullopt);
    }
}

TEST(Commands, ShowTheKeysThatTheyHave) {
    EXPECT_STREQ(keysOf(Command::CopyColumn), L"Ctrl+Shift+C");
    EXPECT_STREQ(keysOf(Command::Find), L"Ctrl+F");
    for (const Command command : {Command::SwitchAutoscroll, Command::SwitchLockedColumns, Command::SwitchTheme})
        EXPECT_STRNE(keysOf(command), L"");
    EXPECT_STREQ(keysOf(Command::FitAllColumns), L"");
}

TEST(Commands, ASearchOutlivesCommandsAndHeldKeys) {
    for (const unsigned int held : {0x10, 0x11, 0x12, 0x14, 0x5B, 0x5C, 0x5D, 0x90, 0x91})
        EXPECT_TRUE(searchOutlives({held, false, false, KeyPlace::Rows})) << held;
    EXPECT_TRUE(searchOutlives({0x11, Ctrl, false, KeyPlace::Rows}));
    EXPECT_TRUE(searchOutlives({'C', Ctrl, false, KeyPlace::Rows}));
    EXPECT_TRUE(searchOutlives({F3, false, false, KeyPlace::Rows}));
    EXPECT_TRUE(searchOutlives({0x09, false, false, KeyPlace::Rows}));
}

TEST(Commands, ASearchEndsWithKeysThatMoveOrWrite) {
    constexpr unsigned int Escape = 0x1B;
    constexpr unsigned int Down = 0x28;
    for (const unsigned int key : {Escape, Down, unsigned{'C'}, unsigned{'Z'}})
        EXPECT_FALSE(searchOutlives({key, false, false, KeyPlace::Rows})) << key;
    EXPECT_FALSE(searchOutlives({'Z', Ctrl, false, KeyPlace::Rows}));
}
