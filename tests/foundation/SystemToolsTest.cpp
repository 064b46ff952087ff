#include "OrtinFoundation/Clipboard.h"
#include "OrtinFoundation/Keyboard.h"
#include "OrtinFoundation/ParameterStatus.h"
#include "OrtinFoundation/StringTools.h"
#include "OrtinFoundation/UniqueMessage.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace {

using namespace OrtinTools;

TEST(UniqueMessages, OfEqualTextsHaveEqualNumbers) {
    const UniqueMessage message(L"OrtinFoundationTest_first");
    EXPECT_EQ(static_cast<UINT>(message), UniqueMessage(L"OrtinFoundationTest_first"));
    EXPECT_NE(static_cast<UINT>(message), UniqueMessage(L"OrtinFoundationTest_second"));
    EXPECT_GE(message, 0xC000u);
    EXPECT_LE(message, 0xFFFFu);
    EXPECT_EQ(RegisterWindowMessageW(L"OrtinFoundationTest_first"), message);
    EXPECT_FALSE(message == WM_NULL);
    EXPECT_EQ(0u, UniqueMessage(L""));
}

TEST(Keyboard, TellsTheModifiersApart) {
    struct Case {
        BYTE key;
        bool shift;
        bool ctrl;
        bool alt;
    };
    const Case cases[] = {
        {0, false, false, false},      {VK_SHIFT, true, false, false},   {VK_CONTROL, false, true, false},
        {VK_MENU, false, false, true}, {VK_RETURN, false, false, false},
    };
    for (const Case& each : cases) {
        BYTE keys[256]{};
        keys[each.key] = each.key != 0 ? 0x80 : 0;
        ASSERT_TRUE(SetKeyboardState(keys));
        EXPECT_EQ(each.shift, Keyboard::IsShiftPressed()) << int(each.key);
        EXPECT_EQ(each.ctrl, Keyboard::IsCtrlPressed()) << int(each.key);
        EXPECT_EQ(each.alt, Keyboard::IsAltPressed()) << int(each.key);
    }
    BYTE toggled[256]{};
    toggled[VK_CONTROL] = 1;
    SetKeyboardState(toggled);
    EXPECT_FALSE(Keyboard::IsCtrlPressed()) << "toggled is not pressed";
}

/// The display's own clipboard looks at what is new in the system's one and holds it for a moment.
bool openFreeClipboard(HWND owner) {
    const ULONGLONG end = GetTickCount64() + 2000;
    while (!OpenClipboard(owner)) {
        if (GetTickCount64() > end) {
            return false;
        }
        Sleep(1);
    }
    return true;
}

class ClipboardText : public testing::Test {
protected:
    ClipboardText()
        : owner(CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr)) {}
    ~ClipboardText() override { DestroyWindow(owner); }

    const HWND owner;
};

TEST_F(ClipboardText, ComesBackAsItWasSet) {
    for (const wchar_t* text : {L"zażółć gęślą jaźń", L"a\tb\r\nc", L"\xD83D\xDCC8", L""}) {
        EXPECT_TRUE(Clipboard::SetClipboardString(owner, text));
        EXPECT_EQ(std::wstring(text), Clipboard::GetClipboardString(owner));
        EXPECT_EQ(std::wstring(text), Clipboard::GetClipboardString(nullptr));
    }
    const std::wstring longText(1'000'000, L'x');
    EXPECT_TRUE(Clipboard::SetClipboardString(owner, longText));
    EXPECT_EQ(longText, Clipboard::GetClipboardString(owner));
}

TEST_F(ClipboardText, IsNoneWhenTheClipboardHoldsNone) {
    ASSERT_TRUE(openFreeClipboard(owner));
    EmptyClipboard();
    CloseClipboard();
    EXPECT_EQ(std::nullopt, Clipboard::GetClipboardString(owner));
}

TEST_F(ClipboardText, WithoutATerminatorEndsWithItsMemory) {
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, 4 * sizeof(wchar_t));
    wmemset(static_cast<wchar_t*>(GlobalLock(memory)), L'x', 4);
    GlobalUnlock(memory);
    ASSERT_TRUE(openFreeClipboard(owner));
    EmptyClipboard();
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
    const auto text = Clipboard::GetClipboardString(owner);
    ASSERT_TRUE(text);
    // The system itself may put a terminator into the last place.
    EXPECT_EQ(L"xxx", text->substr(0, 3));
    EXPECT_LE(text->size(), 4u);
}

/// Holds the clipboard in another thread for some time.
class ForeignHold {
public:
    explicit ForeignHold(DWORD milliseconds)
        : m_thread([this, milliseconds] {
              m_isHeld = openFreeClipboard(nullptr);
              m_isReady = true;
              Sleep(milliseconds);
              CloseClipboard();
          }) {
        while (!m_isReady) {
            Sleep(1);
        }
    }
    ~ForeignHold() { m_thread.join(); }

    bool isHeld() const { return m_isHeld; }

private:
    std::atomic<bool> m_isReady = false;
    std::atomic<bool> m_isHeld = false;
    std::thread m_thread;
};

TEST_F(ClipboardText, WaitsForAMomentWhileSomebodyElseHoldsTheClipboard) {
    ASSERT_TRUE(Clipboard::SetClipboardString(owner, L"przedtem"));
    {
        const ForeignHold hold(30);
        ASSERT_TRUE(hold.isHeld());
        EXPECT_TRUE(Clipboard::SetClipboardString(owner, L"potem"));
    }
    EXPECT_EQ(L"potem", Clipboard::GetClipboardString(owner));
    {
        const ForeignHold hold(1000);
        ASSERT_TRUE(hold.isHeld());
        EXPECT_FALSE(Clipboard::SetClipboardString(owner, L"nigdy"));
        EXPECT_EQ(std::nullopt, Clipboard::GetClipboardString(owner));
    }
    EXPECT_EQ(L"potem", Clipboard::GetClipboardString(owner));
}

TEST(ParameterStatuses, AreSuccessUnlessTheyHaveACode) {
    EXPECT_TRUE(ParameterStatus().IsSuccess());
    EXPECT_EQ(ParameterStatus::Success, ParameterStatus().GetCode());
    EXPECT_TRUE(ParameterStatus().GetMessageText().empty());
    const ParameterStatus failure(1, L"Za długi tekst");
    EXPECT_FALSE(failure.IsSuccess());
    EXPECT_EQ(1, failure.GetCode());
    EXPECT_EQ(L"Za długi tekst", failure.GetMessageText());
    EXPECT_NE(failure, ParameterStatus());
}

TEST(LogCodePage, IsWindows1250WhateverTheSystemsOwn) {
    struct Case {
        const wchar_t* wide;
        const char* ansi;
    };
    const Case cases[] = {
        {L"", ""},
        {L"GetLastError() == 5", "GetLastError() == 5"},
        {L"zażółć gęślą jaźń", "za\xBF\xF3\xB3\xE6 g\xEA\x9Cl\xB9 ja\x9F\xF1"},
        {L"ZAŻÓŁĆ GĘŚLĄ JAŹŃ", "ZA\xAF\xD3\xA3\xC6 G\xCA\x8CL\xA5 JA\x8F\xD1"},
        {L"1 \x20AC", "1 \x80"},
        {L"\x044F \x0101 \x00E5", "? ? ?"}, // a letter that looks alike would be another name
        {L"a\nb\t", "a\nb\t"},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(each.ansi, String::WideToAnsi(each.wide));
    }
    EXPECT_EQ(std::string("a\0b", 3), String::WideToAnsi(std::wstring_view(L"a\0b", 3)));
    EXPECT_EQ("za", String::WideToAnsi(std::wstring_view(L"zażółć", 2))) << "a view needs no terminator";
    EXPECT_EQ("a?", String::WideToAnsi(L"a\xD83D\xDCC8").substr(0, 2));
    EXPECT_EQ("a?b", String::WideToAnsi(L"a\xD83D"
                                        L"b"))
        << "half a pair";
    const std::wstring longText(1'000'000, L'ż');
    EXPECT_EQ(std::string(1'000'000, '\xBF'), String::WideToAnsi(longText));
}

} // namespace
