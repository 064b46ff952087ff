#include "StretchedPages.h"

#include <algorithm>

#include <OrtinFoundation/DeletableDC.h>

namespace {

/// Whether stretching makes fewer pixels of pixels that are all there.
bool isShrunk(CBitmap& page, CSize sourceSize, CSize size) {
    BITMAP shape{};
    page.GetBitmap(&shape);
    return sourceSize.cx <= shape.bmWidth && sourceSize.cy <= shape.bmHeight && size.cx < sourceSize.cx &&
           size.cy < sourceSize.cy && size.cx > 0 && size.cy > 0;
}

} // namespace

void PrintPreviewWindow::StretchedPages::draw(CDC& dc, const CRect& place, CDC& source,
                                              const std::shared_ptr<CBitmap>& page, CSize sourceSize) {
    if (CBitmap* const picture = pictureOf(dc, place.Size(), source, page, sourceSize)) {
        DeletableDC memory(&dc);
        memory.SelectObject(picture);
        dc.BitBlt(place.left, place.top, place.Width(), place.Height(), &memory, 0, 0, SRCCOPY);
    } else {
        dc.StretchBlt(place.left, place.top, place.Width(), place.Height(), &source, 0, 0, sourceSize.cx, sourceSize.cy,
                      SRCCOPY);
    }
}

CBitmap* PrintPreviewWindow::StretchedPages::pictureOf(CDC& dc, CSize size, CDC& source,
                                                       const std::shared_ptr<CBitmap>& page, CSize sourceSize) {
    const auto known = std::find_if(m_pictures.begin(), m_pictures.end(), [&](const Picture& picture) {
        return picture.page == page && picture.sourceSize == sourceSize && picture.size == size;
    });
    if (known != m_pictures.end()) {
        known->isUsed = true;
        return &known->bitmap;
    }
    if (!isShrunk(*page, sourceSize, size)) {
        return nullptr;
    }
    Picture& picture = m_pictures.emplace_back();
    picture.page = page;
    picture.sourceSize = sourceSize;
    picture.size = size;
    DeletableDC memory(&dc);
    if (!picture.bitmap.CreateCompatibleBitmap(&dc, size.cx, size.cy) ||
        memory.SelectObject(&picture.bitmap) == nullptr) {
        m_pictures.pop_back();
        return nullptr;
    }
    memory.SetStretchBltMode(HALFTONE);
    memory.StretchBlt(0, 0, size.cx, size.cy, &source, 0, 0, sourceSize.cx, sourceSize.cy, SRCCOPY);
    return &picture.bitmap;
}

void PrintPreviewWindow::StretchedPages::forgetUnused() {
    m_pictures.remove_if([](const Picture& picture) { return !picture.isUsed; });
    for (Picture& picture : m_pictures) {
        picture.isUsed = false;
    }
}
