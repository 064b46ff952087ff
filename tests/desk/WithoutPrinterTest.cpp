#include "DeskProcess.h"
#include "Printers.h"
#include "support/RealInput.h"

class WithoutPrinter : public DeskOnScreen {
protected:
    static HWND message() { return ::FindWindowW(L"#32770", L"OrtinDesk"); }
};

TEST_F(WithoutPrinter, PrintingAndThePreviewSayThatThereIsNoneAndTheDeskGoesOn) {
    ASSERT_TRUE(Desk::systemPrinters().empty()) << "CTest runs this program where no spooler is found";
    start();
    for (const bool preview : {false, true}) {
        if (preview)
            support::chord({VK_CONTROL, VK_SHIFT, 'P'});
        else
            support::chord({VK_CONTROL, 'P'});
        ASSERT_TRUE(eventually([] { return message() && ::GetForegroundWindow() == message(); }));
        EXPECT_EQ(textOf(::GetDlgItem(message(), 0xFFFF)), Desk::NoPrinterText);
        support::typeKey(VK_RETURN);
        EXPECT_TRUE(eventually([&] { return !message() && ::IsWindowEnabled(desk()); }));
    }
    EXPECT_EQ(copiedSymbols(), "S00");
}
