// The library as a host loads it: what it carries, what it registers, how a refused registration ends.

#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include <OrtinFoundation/DllData.h>
#include <afxwin.h>
#include <gtest/gtest.h>

#include "support/ImportPatch.h"
#include "support/Resources.h"

namespace {

constexpr wchar_t kLibrary[] = L"OrtinControls.dll";
constexpr WORD kPolish = 1045;
constexpr WORD kEnglish = 1033;
constexpr wchar_t kColumnCursor[] = L"#3008";

class Module : public testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(nullptr, ::GetModuleHandleW(kLibrary)) << "another test has left it loaded"; }
};

class LoadedModule : public Module {
protected:
    void SetUp() override {
        Module::SetUp();
        m_library = ::LoadLibraryW(kLibrary);
        ASSERT_NE(nullptr, m_library);
    }
    void TearDown() override { ::FreeLibrary(m_library); }

    bool carries(int id, const wchar_t* type, WORD language) const {
        return ::FindResourceExW(m_library, type, MAKEINTRESOURCEW(id), language) != nullptr;
    }

    HMODULE m_library = nullptr;
};

struct DialogItem {
    int id;
    const wchar_t* windowClass;
    int x, y, width, height;
};

std::string describe(const RECT& rect) {
    return std::to_string(rect.left) + "," + std::to_string(rect.top) + " " + std::to_string(rect.right - rect.left) +
           "x" + std::to_string(rect.bottom - rect.top);
}

/// `unit` holds place and size, each of which the system scales for itself.
std::string inPixels(HWND dialog, RECT unit) {
    ::MapDialogRect(dialog, &unit);
    return describe({unit.left, unit.top, unit.left + unit.right, unit.top + unit.bottom});
}

void expectItem(HWND dialog, const DialogItem& expected) {
    HWND const item = ::GetDlgItem(dialog, expected.id);
    ASSERT_NE(nullptr, item) << expected.id;
    wchar_t name[20]{};
    ::GetClassNameW(item, name, static_cast<int>(std::size(name)));
    EXPECT_STREQ(expected.windowClass, name) << expected.id;
    EXPECT_EQ(0, ::GetWindowLongW(item, GWL_STYLE) & BS_TYPEMASK) << "push button, left text, plain edit";
    RECT place{};
    ::GetWindowRect(item, &place);
    ::MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
    EXPECT_EQ(inPixels(dialog, {expected.x, expected.y, expected.width, expected.height}), describe(place))
        << expected.id;
}

TEST_F(LoadedModule, CarriesItsPicturesCursorAndDialogsInTheirLanguages) {
    for (int id = 3011; id <= 3028; ++id) {
        EXPECT_TRUE(carries(id, L"PNG", kPolish)) << id;
    }
    EXPECT_TRUE(carries(3008, MAKEINTRESOURCEW(12), kPolish)) << "cursor group";
    for (const int id : {103, 3006, 3007}) {
        EXPECT_TRUE(carries(id, MAKEINTRESOURCEW(5), kEnglish)) << "dialog " << id;
    }
    EXPECT_FALSE(carries(3010, L"PNG", kPolish));
}

TEST_F(LoadedModule, PicturesHaveTheSizesOfTheirFamilies) {
    const int sizes[] = {12, 16, 24, 32};
    for (int id = 3011; id <= 3028; ++id) {
        const HRSRC resource = ::FindResourceW(m_library, MAKEINTRESOURCEW(id), L"PNG");
        const auto* const bytes =
            static_cast<const unsigned char*>(::LockResource(::LoadResource(m_library, resource)));
        ASSERT_NE(nullptr, bytes) << id;
        const int expected = id < 3013 ? 16 : sizes[(id - 3013) % 4];
        // Width and height stand big-endian behind the signature and the first chunk's head.
        EXPECT_EQ(expected, bytes[18] * 256 + bytes[19]) << id;
        EXPECT_EQ(expected, bytes[22] * 256 + bytes[23]) << id;
    }
}

TEST_F(LoadedModule, DialogTemplatesHoldTheirItemsInPlace) {
    // Places and sizes are in dialog units.
    const std::vector<DialogItem> oneLine{
        {3004, L"Edit", 3, 3, 100, 12}, {3001, L"Button", 106, 3, 14, 12}, {3003, L"Button", 121, 3, 14, 12}};
    struct Case {
        int id;
        bool child;
        SIZE size;
        std::vector<DialogItem> items;
    };
    for (const Case& c : {Case{103, true, {138, 17}, oneLine}, Case{3006, false, {138, 17}, oneLine},
                          Case{3007, true, {241, 175}, {{3010, L"Static", 3, 2, 235, 172}}}}) {
        SCOPED_TRACE(c.id);
        HWND const parent =
            ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 900, 900, nullptr, nullptr, nullptr, nullptr);
        HWND const dialog = ::CreateDialogParamW(
            m_library, MAKEINTRESOURCEW(c.id), parent, [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; }, 0);
        ASSERT_NE(nullptr, dialog);
        EXPECT_EQ(c.child, (::GetWindowLongW(dialog, GWL_STYLE) & WS_CHILD) != 0);
        EXPECT_EQ(!c.child, (::GetWindowLongW(dialog, GWL_STYLE) & WS_POPUP) != 0);
        RECT client{};
        ::GetClientRect(dialog, &client);
        EXPECT_EQ(inPixels(dialog, {0, 0, c.size.cx, c.size.cy}), describe(client));
        std::size_t children = 0;
        for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
            ++children;
        }
        EXPECT_EQ(c.items.size(), children);
        for (const DialogItem& item : c.items) {
            expectItem(dialog, item);
        }
        ::DestroyWindow(dialog);
        ::DestroyWindow(parent);
    }
}

TEST_F(LoadedModule, DialogTemplatesOfOneLineNameTheirTypeface) {
    for (const int id : {103, 3006}) {
        const HRSRC resource = ::FindResourceW(m_library, MAKEINTRESOURCEW(id), MAKEINTRESOURCEW(5));
        const auto* const words = static_cast<const WORD*>(::LockResource(::LoadResource(m_library, resource)));
        ASSERT_NE(nullptr, words) << id;
        EXPECT_EQ(0xFFFF, words[1]) << "the extended form, whose words this test counts";
        // Behind 13 words of head an empty menu, the usual class, an empty title.
        EXPECT_EQ(0, words[13] + words[14] + words[15]) << id;
        EXPECT_EQ(8, words[16]) << id;
        EXPECT_STREQ(L"MS Shell Dlg", reinterpret_cast<const wchar_t*>(words + 19)) << id;
    }
}

TEST_F(LoadedModule, DeclaresItselfDpiAwareAndAsksForNoMoreRights) {
    const HRSRC resource = ::FindResourceW(m_library, MAKEINTRESOURCEW(2), MAKEINTRESOURCEW(24));
    ASSERT_NE(nullptr, resource);
    const std::string manifest(static_cast<const char*>(::LockResource(::LoadResource(m_library, resource))),
                               ::SizeofResource(m_library, resource));
    EXPECT_NE(std::string::npos, manifest.find(">true</dpiAware>"));
    EXPECT_NE(std::string::npos, manifest.find("level=\"asInvoker\""));
}

TEST_F(LoadedModule, SaysItsVersion) {
    EXPECT_NE(nullptr, ::FindResourceW(m_library, MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(16)));
}

TEST_F(LoadedModule, TheMinimumColumnWidthIsScaledFromSixteenPixels) {
    const auto* const width = reinterpret_cast<const int*>(::GetProcAddress(m_library, "kMinColumnWidth"));
    ASSERT_NE(nullptr, width);
    HDC const screen = ::GetDC(nullptr);
    EXPECT_EQ(::MulDiv(16, ::GetDeviceCaps(screen, LOGPIXELSX), 96), *width);
    ::ReleaseDC(nullptr, screen);
}

TEST_F(LoadedModule, ItsResourcesAreFoundBesideTheHostsWhileItIsLoaded) {
    EXPECT_EQ(m_library, AfxFindResourceHandle(kColumnCursor, MAKEINTRESOURCEW(12)));
    HCURSOR const cursor = ::LoadCursorW(m_library, MAKEINTRESOURCEW(3008));
    EXPECT_NE(nullptr, cursor);
}

TEST_F(Module, ItsResourcesAreNotFoundOnceItIsUnloaded) {
    ::FreeLibrary(::LoadLibraryW(kLibrary));
    EXPECT_EQ(nullptr, ::FindResourceW(AfxFindResourceHandle(kColumnCursor, MAKEINTRESOURCEW(12)), kColumnCursor,
                                       MAKEINTRESOURCEW(12)));
}

TEST_F(Module, UnloadingAnUnusedModuleEndsItsRegistrationSoThatItLoadsAgainAndAgain) {
    ::FreeLibrary(::LoadLibraryW(kLibrary));
    const support::Resources before = support::Resources::inUse();
    for (int cycle = 0; cycle < 100; ++cycle) {
        HMODULE const library = ::LoadLibraryW(kLibrary);
        ASSERT_NE(nullptr, library) << cycle;
        ASSERT_TRUE(::FreeLibrary(library));
        ASSERT_EQ(nullptr, ::GetModuleHandleW(kLibrary));
    }
    const support::Resources after = support::Resources::inUse();
    EXPECT_EQ(before.gdiHandles, after.gdiHandles);
    EXPECT_EQ(before.windows, after.windows);
    EXPECT_LT(after.heapBytes, before.heapBytes + 64 * 1024);
}

BOOL refuseExtensionModule(AFX_EXTENSION_MODULE& /*state*/, HMODULE /*module*/) {
    return FALSE;
}

TEST_F(Module, AFoundationThatRefusesTheRegistrationFailsTheLoadCleanly) {
    {
        const support::ImportPatch refusal(::GetModuleHandleW(L"OrtinFoundation.dll"), "OrtinMfc.dll",
                                           "_Z22AfxInitExtensionModuleR20AFX_EXTENSION_MODULEP11HINSTANCE__",
                                           &refuseExtensionModule);
        EXPECT_EQ(nullptr, ::LoadLibraryW(kLibrary));
        EXPECT_EQ(nullptr, ::GetModuleHandleW(kLibrary));
    }
    HMODULE const library = ::LoadLibraryW(kLibrary);
    EXPECT_NE(nullptr, library) << "the refused load has left something behind";
    ::FreeLibrary(library);
}

TEST_F(LoadedModule, ThreadsThatComeAndGoChangeNothing) {
    const support::Resources before = support::Resources::inUse();
    for (int round = 0; round < 50; ++round) {
        std::thread([] {}).join();
    }
    const support::Resources after = support::Resources::inUse();
    EXPECT_EQ(before.gdiHandles, after.gdiHandles);
    EXPECT_EQ(before.windows, after.windows);
    EXPECT_NE(nullptr, ::GetModuleHandleW(kLibrary));
}

/// Keeps the foundation among this program's own imports, so that it is there before the library.
TEST_F(Module, ARecordThatIsRegisteredOnceIsNotRegisteredAgain) {
    DllData record;
    EXPECT_TRUE(record.InitExtensionModule(::GetModuleHandleW(L"OrtinFoundation.dll")));
    EXPECT_FALSE(record.InitExtensionModule(::GetModuleHandleW(L"OrtinFoundation.dll")));
    record.TermExtensionModule();
    EXPECT_EQ(nullptr, record.GetModuleInstance());
}

} // namespace
