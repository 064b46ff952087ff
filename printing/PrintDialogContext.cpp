#include <OrtinControls/PrintDialogContext.h>

#include <utility>

PrintDialogContext::PrintDialogContext() = default;

// Copies share the handle on purpose: a device context cannot be duplicated, and hosts keep one live owner.
PrintDialogContext::PrintDialogContext(const PrintDialogContext& other) = default;
PrintDialogContext& PrintDialogContext::operator=(const PrintDialogContext& other) = default;

PrintDialogContext::~PrintDialogContext() {
    ReleaseCurrentDC();
}

void PrintDialogContext::ReleaseCurrentDC() {
    if (m_printerDC != nullptr) {
        ::DeleteDC(m_printerDC);
        m_printerDC = nullptr;
    }
}

void PrintDialogContext::PrinterDC(HDC dc) {
    ReleaseCurrentDC(); // also when it is the same handle: meant to be as simple as that
    m_printerDC = dc;
}

HDC PrintDialogContext::PrinterDC() const {
    return m_printerDC;
}

void PrintDialogContext::PrinterPortName(CString name) {
    m_printerPortName = std::move(name);
}

CString PrintDialogContext::PrinterPortName() const {
    return m_printerPortName;
}

void PrintDialogContext::PrinterName(CString name) {
    m_printerName = std::move(name);
}

CString PrintDialogContext::PrinterName() const {
    return m_printerName;
}

void PrintDialogContext::FromPage(int page) {
    m_fromPage = page;
}

int PrintDialogContext::FromPage() const {
    return m_fromPage;
}

void PrintDialogContext::ToPage(int page) {
    m_toPage = page;
}

int PrintDialogContext::ToPage() const {
    return m_toPage;
}

void PrintDialogContext::CustomPrintOptionId(unsigned int id) {
    m_customPrintOptionId = id;
}

unsigned int PrintDialogContext::CustomPrintOptionId() const {
    return m_customPrintOptionId;
}

void PrintDialogContext::PrintOption(EPrintOption option) {
    m_printOption = option;
}

EPrintOption PrintDialogContext::PrintOption() const {
    return m_printOption;
}

void PrintDialogContext::FitToPageArea(bool fit) {
    m_fitToPageArea = fit;
}

bool PrintDialogContext::FitToPageArea() const {
    return m_fitToPageArea;
}
