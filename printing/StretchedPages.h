#pragma once

#include <list>
#include <memory>

#include <OrtinControls/PrintPreviewWindow.h>

/// The pages in view at their size on the screen: a scroll step copies them, while stretching would read every pixel of
/// the printer again. Only pictures that are smaller than the page's own are kept.
class PrintPreviewWindow::StretchedPages {
public:
    /// The same pixels as CDC::StretchBlt of the upper left part of `source`, into which `page` is selected.
    void draw(CDC& dc, const CRect& place, CDC& source, const std::shared_ptr<CBitmap>& page, CSize sourceSize);
    /// Forgets the pages that were not drawn since the last call.
    void forgetUnused();
    void clear() { m_pictures.clear(); }

private:
    struct Picture {
        std::shared_ptr<CBitmap> page;
        CSize sourceSize;
        CSize size;
        CBitmap bitmap;
        bool isUsed = true;
    };

    /// Null where none is kept.
    CBitmap* pictureOf(CDC& dc, CSize size, CDC& source, const std::shared_ptr<CBitmap>& page, CSize sourceSize);

    std::list<Picture> m_pictures;
};
