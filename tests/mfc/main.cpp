#include <gtest/gtest.h>

#include <afxwin.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    AfxWinInit(GetModuleHandleW(nullptr), nullptr, GetCommandLineW(), SW_SHOWNOACTIVATE);
    return RUN_ALL_TESTS();
}
