#include "test_windows.h"

#include <gtest/gtest.h>

namespace {

/// A library that holds resources only, registered as an extension module for its lifetime.
class ExtensionModule {
public:
    explicit ExtensionModule(const wchar_t* file) : m_module(LoadLibraryW(file)) {
        EXPECT_TRUE(AfxInitExtensionModule(m_state, m_module));
        new CDynLinkLibrary(m_state);
    }
    ExtensionModule(const ExtensionModule&) = delete;
    ExtensionModule& operator=(const ExtensionModule&) = delete;
    ~ExtensionModule() {
        AfxTermExtensionModule(m_state);
        FreeLibrary(m_module);
    }
    HMODULE get() const { return m_module; }

private:
    HMODULE m_module;
    AFX_EXTENSION_MODULE m_state;
};

class ResourceOverride {
public:
    explicit ResourceOverride(HINSTANCE module) : m_before(AfxGetResourceHandle()) { AfxSetResourceHandle(module); }
    ResourceOverride(const ResourceOverride&) = delete;
    ResourceOverride& operator=(const ResourceOverride&) = delete;
    ~ResourceOverride() { AfxSetResourceHandle(m_before); }

private:
    HINSTANCE m_before;
};

HINSTANCE holderOf(UINT id) {
    return AfxFindResourceHandle(MAKEINTRESOURCE(id), RT_RCDATA);
}

// Which of the modules hold which resource.
constexpr UINT inAll = 301;
constexpr UINT inBothExtensions = 302;
constexpr UINT inFirstExtension = 303;
constexpr UINT inSecondExtension = 304;
constexpr UINT nowhere = 399;

class Modules : public testing::Test {
protected:
    HMODULE program = GetModuleHandleW(nullptr);
    ExtensionModule first{L"ortin_mfc_extension_a.dll"};
    ExtensionModule second{L"ortin_mfc_extension_b.dll"};
};

} // namespace

TEST_F(Modules, TheProgramIsSearchedFirstThenTheExtensionRegisteredLast) {
    ASSERT_NE(nullptr, first.get());
    ASSERT_NE(nullptr, second.get());
    EXPECT_EQ(program, holderOf(inAll));
    EXPECT_EQ(second.get(), holderOf(inBothExtensions));
    EXPECT_EQ(first.get(), holderOf(inFirstExtension));
    EXPECT_EQ(second.get(), holderOf(inSecondExtension));
    EXPECT_EQ(AfxGetResourceHandle(), holderOf(nowhere));
}

TEST_F(Modules, AnOverrideIsSearchedBeforeTheProgram) {
    const ResourceOverride override(first.get());
    EXPECT_EQ(first.get(), AfxGetResourceHandle());
    EXPECT_EQ(first.get(), holderOf(inAll));
    EXPECT_EQ(first.get(), holderOf(inBothExtensions));
    EXPECT_EQ(second.get(), holderOf(inSecondExtension));
    EXPECT_EQ(first.get(), holderOf(nowhere));
}

TEST_F(Modules, AnOverrideDoesNotHideTheProgram) {
    constexpr UINT inProgramOnly = 305;
    const ResourceOverride override(first.get());
    EXPECT_EQ(program, holderOf(inProgramOnly));
}

TEST_F(Modules, AnExtensionThatEndedIsNotSearchedAnyMore) {
    {
        const ExtensionModule again(L"ortin_mfc_extension_a.dll");
        EXPECT_EQ(again.get(), holderOf(inBothExtensions));
    }
    // Its end took every entry of that library with it.
    EXPECT_EQ(second.get(), holderOf(inBothExtensions));
    EXPECT_EQ(AfxGetResourceHandle(), holderOf(inFirstExtension));
}

TEST_F(Modules, StringsComeFromTheModuleThatHasThem) {
    wchar_t text[20] = {};
    EXPECT_EQ(8, AfxLoadString(4000, text, 20));
    EXPECT_STREQ(L"w drugim", text);
    EXPECT_EQ(3, AfxLoadString(4000, text, 4));
    EXPECT_STREQ(L"w d", text);
    EXPECT_EQ(0, AfxLoadString(9999, text, 20));
    EXPECT_STREQ(L"", text);
    CString string;
    EXPECT_TRUE(string.LoadString(4000));
    EXPECT_STREQ(L"w drugim", string);
}

TEST_F(Modules, AStringIsFoundInWhicheverModuleHasItThoughAllHaveItsBlockOfSixteen) {
    const struct {
        UINT id;
        const wchar_t* expected;
    } cases[] = {
        {4000, L"w drugim"}, {4001, L"w pierwszym"}, {4002, L"w programie"}, {4003, L"w drugim, nie w pierwszym"},
        {4004, L""},
    };
    for (const auto& each : cases) {
        wchar_t text[40] = L"przedtem";
        EXPECT_EQ(static_cast<int>(std::wcslen(each.expected)), AfxLoadString(each.id, text, 40)) << each.id;
        EXPECT_STREQ(each.expected, text);
        CString string(L"przedtem");
        EXPECT_EQ(*each.expected != L'\0', string.LoadString(each.id) != FALSE) << each.id;
        EXPECT_STREQ(each.expected, string);
        CStringA narrow;
        narrow.LoadString(each.id);
        EXPECT_EQ(string.GetLength(), narrow.GetLength()) << each.id;
    }
}

TEST_F(Modules, AMessageBoxTakesItsTextFromTheResources) {
    TestApplication::get().log.take();
    EXPECT_EQ(IDOK, AfxMessageBox(4000U));
    EXPECT_EQ("box:w drugim", TestApplication::get().log.take());
    EXPECT_EQ(0, AfxMessageBox(9999U));
    EXPECT_EQ("", TestApplication::get().log.take());
}

TEST(ModuleState, NoModuleCanNotBeRegistered) {
    AFX_EXTENSION_MODULE state;
    EXPECT_FALSE(AfxInitExtensionModule(state, nullptr));
    EXPECT_FALSE(state.bInitialized);
}

TEST(ModuleState, TheProgramIsTheInstance) {
    EXPECT_EQ(GetModuleHandleW(nullptr), AfxGetInstanceHandle());
    EXPECT_EQ(GetModuleHandleW(nullptr), AfxGetModuleState()->m_hCurrentInstanceHandle);
    EXPECT_EQ(&TestApplication::get(), AfxGetApp());
}
