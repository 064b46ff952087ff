// The library as a host loads it: what it carries, what it registers, how a refused registration ends.

#include <set>
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

TEST_F(LoadedModule, DialogTemplatesHoldTheirItems) {
    struct Case {
        int id;
        std::vector<int> items;
        bool child;
    };
    for (const Case& dialog :
         {Case{103, {3004, 3001, 3003}, true}, Case{3006, {3004, 3001, 3003}, false}, Case{3007, {3010}, true}}) {
        HWND const parent =
            ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 500, 500, nullptr, nullptr, nullptr, nullptr);
        HWND const window = ::CreateDialogParamW(
            m_library, MAKEINTRESOURCEW(dialog.id), parent, [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; },
            0);
        ASSERT_NE(nullptr, window) << dialog.id;
        EXPECT_EQ(dialog.child, (::GetWindowLongW(window, GWL_STYLE) & WS_CHILD) != 0) << dialog.id;
        for (const int item : dialog.items) {
            EXPECT_NE(nullptr, ::GetDlgItem(window, item)) << dialog.id << " item " << item;
        }
        ::DestroyWindow(window);
        ::DestroyWindow(parent);
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
