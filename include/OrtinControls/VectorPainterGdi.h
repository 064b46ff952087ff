#pragma once

#include <memory>
#include <type_traits>
#include <vector>

#include <OrtinControls/GdiplusPainter.h>
#include <OrtinControls/IVectorPainter.h>
#include <OrtinFoundation/ClipRegion.h>
#include <OrtinFoundation/CompatibleBitmapOwner.h>

namespace VectorCanvas {

/// The painter over a bitmap in memory. What consists of many straight edges, single pixels and text in a rectangle go
/// through GDI, hard edged, each point truncated toward zero; the rest goes to a GdiplusPainter.
///
/// It has no lock: it belongs to the thread that renders. A window may copy from GetSource() during the next frame, but
/// not while InitRender makes new surfaces, that is when the size changes or after Release; the host sees to that.
/// What the calls through GDI select, colours and modes stay in the source after the call. Buffers for points grow to
/// the longest list and stay, so that a frame like those before it takes no memory.
///
/// Coordinates of lines, pixels, frames and text saturate at the ends of 32 bits, those of FillRects and of all that
/// goes to the GdiplusPainter 2^20 pixels from the origin; single lines that come from beyond keep their course.
class ORTIN_CONTROLS_API VectorPainterGdi : public IVectorPainter {
public:
    VectorPainterGdi();
    /// All goes over: `other` is as newly constructed afterwards.
    VectorPainterGdi(VectorPainterGdi&& other) noexcept;
    VectorPainterGdi& operator=(VectorPainterGdi&& other) noexcept;
    VectorPainterGdi(const VectorPainterGdi&) = delete;
    VectorPainterGdi& operator=(const VectorPainterGdi&) = delete;
    ~VectorPainterGdi() override;

    void InitWindowIdAndViewPort(HWND window, CSize viewport) override;
    void Release() override;
    bool InitRender(const CSize& size) override;
    void EndRender(bool synchronous) override;
    void Clear(unsigned long color) override;
    void DrawLineList(const OrtinPoint<float>* points, std::size_t count, DrawContextGdiLine& line,
                      const OrtinPoint<float>& offset) override;
    void DrawPolyline(const OrtinPoint<float>* points, std::size_t count, DrawContextBase* context,
                      const OrtinPoint<float>& offset) override;
    void DrawPolygon(const OrtinPoint<float>* points, std::size_t count, const DrawContextBase* context,
                     const OrtinPoint<float>& offset) override;
    void DrawEllipse(const OrtinPoint<float>& first, const OrtinPoint<float>& second, const DrawContextBase* context,
                     const OrtinPoint<float>& offset) override;
    void DrawPolyPolyline(const OrtinPoint<float>* points, std::size_t count, const unsigned long* segmentCounts,
                          std::size_t segmentCountCount, DrawContextBase* context,
                          const OrtinPoint<float>& offset) override;
    void DrawPoint(const OrtinPoint<float>& point, const DrawContextBase* context,
                   const OrtinPoint<float>& offset) override;
    void FillRects(const OrtinPoint<float>* points, std::size_t count, DrawContextBase* context,
                   const OrtinPoint<float>& offset) override;
    void DrawLine(const OrtinPoint<float>& from, const OrtinPoint<float>& to, const DrawContextBase* context,
                  const OrtinPoint<float>& offset) override;
    void DrawOrdinaryLine(const OrtinPoint<float>& from, const OrtinPoint<float>& to,
                          const DrawContextBase* context) override;
    void DrawArc(OrtinPoint<float> center, int radiusX, int radiusY, float startAngle, float sweepAngle,
                 const DrawContextBase* context, const OrtinPoint<float>& offset) override;
    void DrawTextW(OrtinPoint<float> position, std::wstring_view text, DrawContextGdiText& context,
                   const OrtinPoint<float>& offset) override;
    void DrawTextW(std::wstring_view text, const CRect2D& rect, DrawContextGdiText& context,
                   unsigned int format) override;
    HDC GetSource() const override { return m_source.get(); }
    void DrawIcon(unsigned __int64 icon, int x, int y) override;
    void DrawBitmap(const OrtinPoint<float>& position, const OrtinPoint<float>& offset, const OrtinPoint<float>& size,
                    const DrawContextBase* context, Gdiplus::Bitmap* bitmap) override;
    void DrawBitmap(const OrtinPoint<float>& position, const OrtinPoint<float>& offset, const DrawContextBase* context,
                    Gdiplus::Bitmap* bitmap) override;
    void DrawRect(const CRect2D& rect, unsigned long frame, unsigned long fill, unsigned int id) override;
    void EnableShadows(int mode) override { m_shadowMode = mode; }
    unsigned int GetObjectId(int x, int y) const override;
    void SetClipRegion(const RECT* rect) override;
    CSize GetViewport() const override { return m_viewport; }
    void DrawControlPoints(unsigned int id, const OrtinPoint<float>* points, std::size_t count,
                           OrtinPoint<float> offset, const DrawControlPointsHelper::PointSettings& settings) override;
    std::pair<int, int> GetTextHeight(HFONT font) const override;

private:
    struct DeviceDeleter {
        void operator()(HDC device) const { ::DeleteDC(device); }
    };
    using OwnedDevice = std::unique_ptr<std::remove_pointer_t<HDC>, DeviceDeleter>;

    void Swap(VectorPainterGdi& other) noexcept;
    bool InitDestination(const CSize& size);
    void InitShadows(HDC screen);
    void ReleaseDestination();
    bool HasShadow(unsigned int id) const;
    void SelectClip(HRGN region);
    template <typename ToPixel>
    const POINT* Convert(const OrtinPoint<float>* points, std::size_t count, const OrtinPoint<float>& offset,
                         const ToPixel& convert);
    /// Draws by `lines` with the pen of `context` and, where there is a shadow, with a pen like it of the id's colour.
    template <typename Lines>
    void DrawLines(DrawContextGdiLine& context, const Lines& lines);
    static bool IsPixelInColorOnLine(HDC device, unsigned long color, int width, int y);

    GdiplusPainter m_gdiPlus;
    CompatibleBitmapOwner m_destination;
    CompatibleBitmapOwner m_shadow;
    OwnedDevice m_source;
    OwnedDevice m_shadowDevice;
    CSize m_viewport;
    HWND m_window = nullptr;
    int m_shadowMode = 0;
    ClipRegion m_clip;
    std::vector<POINT> m_points;
    std::vector<DWORD> m_lineCounts; ///< each of them 2
    std::vector<int> m_rectCounts;   ///< each of them 4
};

} // namespace VectorCanvas
