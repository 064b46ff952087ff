#include <OrtinControls/VectorPainterGdi.h>

#include <utility>

#include <OrtinControls/VectorCanvasCtrl.h>

#include "WindowDevice.h"

namespace VectorCanvas {

VectorPainterGdi::VectorPainterGdi() = default;

VectorPainterGdi::VectorPainterGdi(VectorPainterGdi&& other) noexcept {
    Swap(other);
}

VectorPainterGdi& VectorPainterGdi::operator=(VectorPainterGdi&& other) noexcept {
    VectorPainterGdi taken(std::move(other));
    Swap(taken);
    return *this;
}

VectorPainterGdi::~VectorPainterGdi() = default;

void VectorPainterGdi::Swap(VectorPainterGdi& other) noexcept {
    std::swap(m_gdiPlus, other.m_gdiPlus);
    std::swap(m_destination, other.m_destination);
    std::swap(m_shadow, other.m_shadow);
    std::swap(m_source, other.m_source);
    std::swap(m_shadowDevice, other.m_shadowDevice);
    std::swap(m_viewport, other.m_viewport);
    std::swap(m_window, other.m_window);
    std::swap(m_shadowMode, other.m_shadowMode);
    std::swap(m_clip, other.m_clip);
    std::swap(m_points, other.m_points);
    std::swap(m_lineCounts, other.m_lineCounts);
    std::swap(m_rectCounts, other.m_rectCounts);
}

void VectorPainterGdi::InitWindowIdAndViewPort(HWND window, CSize viewport) {
    m_window = window;
    m_viewport = viewport;
}

void VectorPainterGdi::Release() {
    m_clip.Delete();
    ReleaseDestination();
}

bool VectorPainterGdi::InitRender(const CSize& size) {
    if (m_source == nullptr && !InitDestination(m_viewport)) {
        return false;
    }
    if (m_destination.GetHandle() == nullptr || m_viewport != size) {
        ReleaseDestination();
        if (!InitDestination(size)) {
            return false;
        }
    }
    if (m_shadow.GetHandle() != nullptr) {
        ::PatBlt(m_shadowDevice.get(), 0, 0, size.cx, size.cy, BLACKNESS);
    }
    return true;
}

bool VectorPainterGdi::InitDestination(const CSize& size) {
    if (m_source != nullptr || m_destination.GetHandle() != nullptr) {
        return false;
    }
    const WindowDevice screen(nullptr);
    if (!m_destination.CreateCompatibleBitmap(screen, size.cx, size.cy)) {
        return false;
    }
    m_source.reset(::CreateCompatibleDC(nullptr));
    if (m_source == nullptr) {
        m_destination.Delete();
        return false;
    }
    m_gdiPlus.SetDestinationDevice(m_source.get());
    ::SelectObject(m_source.get(), m_destination.GetHandle());
    m_viewport = size;
    // Without a new one it would go on with the handle of the last, which the system may have given to somebody else.
    m_gdiPlus.SetShadowDevice(nullptr);
    if (m_shadowMode == 1) {
        InitShadows(screen);
    }
    return true;
}

void VectorPainterGdi::InitShadows(HDC screen) {
    if (m_shadowDevice != nullptr || m_shadow.GetHandle() != nullptr) {
        return;
    }
    BITMAPINFO format{};
    format.bmiHeader.biSize = sizeof format.bmiHeader;
    format.bmiHeader.biWidth = m_viewport.cx;
    format.bmiHeader.biHeight = m_viewport.cy;
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 24;
    // Without memory for it there is a picture in which nothing is found.
    if (m_shadow.CreateDIBSection(screen, &format)) {
        m_shadowDevice.reset(::CreateCompatibleDC(nullptr));
        ::SelectObject(m_shadowDevice.get(), m_shadow.GetHandle());
        ::PatBlt(m_shadowDevice.get(), 0, 0, m_viewport.cx, m_viewport.cy, BLACKNESS);
    }
    m_gdiPlus.SetShadowDevice(m_shadowDevice.get());
}

void VectorPainterGdi::ReleaseDestination() {
    // The GDI+ part keeps the handles, dead now, until the next ones; what it is asked to draw meanwhile goes nowhere.
    m_source.reset();
    m_shadowDevice.reset();
    m_destination.Delete();
    m_shadow.Delete();
}

void VectorPainterGdi::EndRender(bool synchronous) {
    m_clip.Delete();
    SelectClip(nullptr);
    const UINT message = VectorCanvasCtrl::GetUpdatePaintingMessage();
    if (m_window == nullptr) {
        return; // posted to no window it would land in the queue of this thread
    }
    if (synchronous) {
        ::SendMessageW(m_window, message, 0, 0);
    } else {
        ::PostMessageW(m_window, message, 0, 0);
    }
}

unsigned int VectorPainterGdi::GetObjectId(int x, int y) const {
    if (x < 0 || y < 0 || x >= m_viewport.cx || y >= m_viewport.cy) {
        return 0;
    }
    const COLORREF color = ::GetPixel(m_shadowDevice.get(), x, y);
    return color != CLR_INVALID ? color : 0;
}

void VectorPainterGdi::SetClipRegion(const RECT* rect) {
    m_clip.Delete();
    if (rect != nullptr) {
        m_clip.Create(rect);
    }
    SelectClip(m_clip.GetHandle());
}

void VectorPainterGdi::SelectClip(HRGN region) {
    ::SelectClipRgn(m_source.get(), region);
    ::SelectClipRgn(m_shadowDevice.get(), region);
}

} // namespace VectorCanvas
