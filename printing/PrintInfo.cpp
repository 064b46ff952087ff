#include <OrtinControls/PrintInfo.h>

namespace {

constexpr int kUnitsPerInch = 96;

/// One scale for both axes, so that the height follows the width.
void scaleEvenly(CDC& dc, int logicalExtent, int deviceExtent) {
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(logicalExtent, logicalExtent);
    dc.SetViewportExt(deviceExtent, deviceExtent);
}

} // namespace

PrintInfo::PrintInfo() = default;
PrintInfo::PrintInfo(const PrintInfo& other) = default;
PrintInfo& PrintInfo::operator=(const PrintInfo& other) = default;
PrintInfo::~PrintInfo() = default;

void PrintInfo::PrepareDCAndPrintArea(bool useLogicalInches, CDC* dc, const CRect& objectRect) {
    m_printArea.SetRect(0, 0, dc->GetDeviceCaps(HORZRES), dc->GetDeviceCaps(VERTRES));
    if (useLogicalInches) {
        dc->SetMapMode(MM_ANISOTROPIC);
        dc->SetWindowExt(kUnitsPerInch, kUnitsPerInch);
        dc->SetViewportExt(dc->GetDeviceCaps(LOGPIXELSX), dc->GetDeviceCaps(LOGPIXELSY));
        dc->DPtoLP(&m_printArea);
    } else if (objectRect.Width() != m_printArea.Width()) {
        scaleEvenly(*dc, objectRect.Width(), m_printArea.Width());
        dc->DPtoLP(&m_printArea);
        m_printArea.MoveToXY(dc->GetWindowOrg());
    }
}

EPrintOption PrintInfo::PrintOption() const {
    return m_dialogContext->PrintOption();
}

unsigned int PrintInfo::CustomPrintOptionId() const {
    return m_dialogContext->CustomPrintOptionId();
}

bool PrintInfo::FitToPageArea() const {
    return m_dialogContext->FitToPageArea();
}

HDC PrintInfo::PrinterDC() const {
    return m_dialogContext->PrinterDC();
}

CString PrintInfo::PrinterPortName() const {
    return m_dialogContext->PrinterPortName();
}

CString PrintInfo::PrinterDeviceName() const {
    return m_dialogContext->PrinterName();
}

CRect PrintInfo::PrintAreaInObjectUnits() const {
    return m_printArea;
}

void PrintInfo::PrintAreaInObjectUnits(const CRect& area) {
    m_printArea = area;
}

int PrintInfo::CurrentPage() const {
    return m_currentPage;
}

void PrintInfo::Update(int pages) {
    m_pagesCount = pages;
}

bool PrintInfo::ContinuePrinting() const {
    return m_continuePrinting;
}

void PrintInfo::ContinuePrinting(bool goOn) {
    m_continuePrinting = goOn;
}
