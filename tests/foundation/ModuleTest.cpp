#include "OrtinFoundation/DllData.h"
#include "OrtinFoundation/ResourceHandleManager.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

constexpr UINT S_extensionText = 900; // in the extension library alone
constexpr UINT S_sharedText = 1001;   // in the program and in the library, with different words

CString textOf(UINT id) {
    CString text;
    text.LoadString(id);
    return text;
}

class ExtensionModule : public testing::Test {
protected:
    void SetUp() override { ASSERT_NE(nullptr, library); }
    ~ExtensionModule() override { FreeLibrary(library); }

    const HMODULE library = LoadLibraryW(L"ortin_test_extension.dll");
};

TEST_F(ExtensionModule, OffersItsResourcesWhileItIsRegistered) {
    DllData data;
    EXPECT_EQ(nullptr, data.GetModuleInstance());
    EXPECT_STREQ(L"", textOf(S_extensionText));
    EXPECT_TRUE(data.InitExtensionModule(library));
    EXPECT_EQ(library, data.GetModuleInstance());
    EXPECT_STREQ(L"Z rozszerzenia", textOf(S_extensionText));
    EXPECT_STREQ(L"Z programu", textOf(S_sharedText)) << "the program comes first";
    data.TermExtensionModule();
    EXPECT_EQ(nullptr, data.GetModuleInstance());
    EXPECT_STREQ(L"", textOf(S_extensionText));
}

TEST_F(ExtensionModule, IsRefusedWithoutAHandleAndTwice) {
    DllData data;
    EXPECT_FALSE(data.InitExtensionModule(nullptr));
    EXPECT_EQ(nullptr, data.GetModuleInstance());
    EXPECT_TRUE(data.InitExtensionModule(library));
    EXPECT_FALSE(data.InitExtensionModule(library));
    EXPECT_EQ(library, data.GetModuleInstance()) << "the first registration stays";
    data.TermExtensionModule();
    data.TermExtensionModule();
    EXPECT_TRUE(data.InitExtensionModule(library));
}

TEST_F(ExtensionModule, EndsWithItsRecord) {
    {
        DllData data;
        data.InitExtensionModule(library);
        EXPECT_STREQ(L"Z rozszerzenia", textOf(S_extensionText));
    }
    EXPECT_STREQ(L"", textOf(S_extensionText));
}

TEST_F(ExtensionModule, IsLookedAtFirstWhileItsResourcesAreCurrent) {
    const HINSTANCE before = AfxGetResourceHandle();
    {
        const ResourceHandleManager extension(library);
        EXPECT_EQ(library, AfxGetResourceHandle());
        EXPECT_STREQ(L"Z rozszerzenia także", textOf(S_sharedText));
        {
            const ResourceHandleManager program(GetModuleHandleW(nullptr));
            EXPECT_STREQ(L"Z programu", textOf(S_sharedText));
        }
        EXPECT_EQ(library, AfxGetResourceHandle());
    }
    EXPECT_EQ(before, AfxGetResourceHandle());
    EXPECT_STREQ(L"Z programu", textOf(S_sharedText));
}

} // namespace
