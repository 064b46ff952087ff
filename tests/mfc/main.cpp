#include "test_windows.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    TestApplication application;
    AfxWinInit(GetModuleHandleW(nullptr), nullptr, GetCommandLineW(), SW_SHOWNOACTIVATE);
    return RUN_ALL_TESTS();
}
