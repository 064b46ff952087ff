// The module's own entry point and process-wide objects, built against stand-ins that log what happens to them.

#include <string>
#include <thread>

#include <gtest/gtest.h>

#include <windows.h>

namespace {

std::wstring orderLog;
bool refused = false;

} // namespace

extern "C" __declspec(dllexport) void appendToOrderLog(const wchar_t* event) {
    orderLog += orderLog.empty() ? event : std::wstring(L", ") + event;
}

extern "C" __declspec(dllexport) bool orderProbeIsRefused() {
    return refused;
}

namespace {

constexpr wchar_t kProbe[] = L"ortin_module_order_probe.dll";

class ModuleOrder : public testing::Test {
protected:
    void SetUp() override {
        orderLog.clear();
        refused = false;
    }

    static std::wstring takeLog() { return std::exchange(orderLog, {}); }
};

TEST_F(ModuleOrder, ProcessWideObjectsAreMadeBeforeTheModuleIsRegisteredAndUnmadeInReverse) {
    const HMODULE probe = ::LoadLibraryW(kProbe);
    ASSERT_NE(nullptr, probe);
    EXPECT_EQ(L"make prints, make TableCtrl_TableViewDataChanged_message, scale 16 from 96, make record, register",
              takeLog());
    ASSERT_TRUE(::FreeLibrary(probe));
    EXPECT_EQ(L"unregister, unmake record, unmake TableCtrl_TableViewDataChanged_message, unmake prints", takeLog());
}

TEST_F(ModuleOrder, ThreadsThatComeAndGoChangeNothing) {
    const HMODULE probe = ::LoadLibraryW(kProbe);
    ASSERT_NE(nullptr, probe);
    takeLog();
    std::thread([] {}).join();
    EXPECT_EQ(L"", takeLog());
    ASSERT_TRUE(::FreeLibrary(probe));
}

TEST_F(ModuleOrder, ARefusedRegistrationFailsTheLoadAndLeavesNoObjectBehind) {
    refused = true;
    EXPECT_EQ(nullptr, ::LoadLibraryW(kProbe));
    EXPECT_EQ(nullptr, ::GetModuleHandleW(kProbe));
    const std::wstring log = takeLog();
    EXPECT_EQ(
        0U,
        log.find(L"make prints, make TableCtrl_TableViewDataChanged_message, scale 16 from 96, make record, register"));
    EXPECT_NE(std::wstring::npos,
              log.find(L"unmake record, unmake TableCtrl_TableViewDataChanged_message, unmake prints"))
        << "nothing is unmade";
}

} // namespace
