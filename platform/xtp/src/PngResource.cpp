#include "PngResource.h"

#include <algorithm>
#include <memory>

#include <objidl.h>
#include <shlwapi.h>

#include <gdiplus.h>

namespace {

struct ReleaseStream {
    void operator()(IStream* stream) const { stream->Release(); }
};
using Stream = std::unique_ptr<IStream, ReleaseStream>;

Stream openResource(UINT id) {
    const wchar_t* const name = MAKEINTRESOURCEW(id);
    const HINSTANCE module = AfxFindResourceHandle(name, L"PNG");
    const HRSRC found = ::FindResourceW(module, name, L"PNG");
    if (found == nullptr) {
        return nullptr;
    }
    const auto* const bytes = static_cast<const BYTE*>(::LockResource(::LoadResource(module, found)));
    return Stream(bytes == nullptr ? nullptr : ::SHCreateMemStream(bytes, ::SizeofResource(module, found)));
}

bool drawInto(BYTE* bits, CSize size, Gdiplus::Image& picture) {
    constexpr int bytesOfPixel = 4;
    Gdiplus::Bitmap target(size.cx, size.cy, size.cx * bytesOfPixel, PixelFormat32bppPARGB, bits);
    Gdiplus::Graphics graphics(&target);
    graphics.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBicubic);
    // Without half a pixel of offset a picture of the same size would be blurred.
    graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
    Gdiplus::ImageAttributes mirrored; // else the rim would take on what lies outside, which is see-through
    mirrored.SetWrapMode(Gdiplus::WrapModeTileFlipXY);
    const Gdiplus::Rect whole(0, 0, static_cast<INT>(size.cx), static_cast<INT>(size.cy));
    return graphics.DrawImage(&picture, whole, 0, 0, static_cast<INT>(picture.GetWidth()),
                              static_cast<INT>(picture.GetHeight()), Gdiplus::UnitPixel, &mirrored) == Gdiplus::Ok;
}

} // namespace

HBITMAP loadPngResource(UINT id, CSize size) {
    const Stream stream = openResource(id);
    if (stream == nullptr || size.cx <= 0 || size.cy <= 0) {
        return nullptr;
    }
    Gdiplus::Bitmap picture(stream.get());
    if (picture.GetLastStatus() != Gdiplus::Ok) {
        return nullptr;
    }
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, size.cx, -size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    const HBITMAP bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap != nullptr && !drawInto(static_cast<BYTE*>(bits), size, picture)) {
        ::DeleteObject(bitmap);
        return nullptr;
    }
    return bitmap;
}
