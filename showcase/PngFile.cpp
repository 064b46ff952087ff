#include "PngFile.h"

#include <OrtinControls/GdiPlusHeaders.h>

namespace Desk {

namespace {

constexpr CLSID PngEncoder{0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

} // namespace

bool writePng(CBitmap& bitmap, const std::wstring& file) {
    Gdiplus::Bitmap picture(bitmap, nullptr);
    return picture.Save(file.c_str(), &PngEncoder, nullptr) == Gdiplus::Ok;
}

} // namespace Desk
