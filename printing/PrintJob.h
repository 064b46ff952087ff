#pragma once

#include <memory>
#include <optional>
#include <string>

#include <OrtinControls/PrintStrategy.h>
#include <XTToolkitPro.h>

#include "LentPrinterDC.h"

/// One call of `PrintStrategy::PrintObject`: what lives for its length, and the steps in their order.
class PrintStrategy::Job {
public:
    Job(std::shared_ptr<PrintInfoEx> info, IPrintable& printable);

    void run();

private:
    enum class PageEnd { Sent, LastOne, Failed };

    void prepare();
    void enableMainWindow(bool enable);
    void showStatusWindow();
    bool startDocument();
    void refuse();

    /// False if the job failed or was cancelled.
    bool printPages();
    PageEnd printPage(int page);
    void showPageNumber();
    bool wasPageForgiven() const;
    bool isCancelled() const;

    void abortDocument();
    void endDocument();
    void finish();

    // In the order of their making: the run's state goes last.
    std::shared_ptr<PrintInfoEx> m_info;
    IPrintable& m_printable;
    const HDC m_printer;
    const std::wstring m_title;
    const CString m_port;
    std::optional<LentPrinterDC> m_dc;
    HWND m_mainWindow = nullptr; // by handle: the window may end while messages are pumped
    std::optional<CXTPPrintingDialog> m_status;
    int m_jobNumber = 0;
    CString m_pageFormat;
};
