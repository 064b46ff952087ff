#include "SheetBands.h"

namespace Desk {

namespace {

constexpr int RowsBeyondCount = 2;

} // namespace

int marginAboveRows(const SheetSizes& sizes) {
    return sizes.edge + sizes.title + sizes.header;
}

int marginBelowRows(const SheetSizes& sizes) {
    return RowsBeyondCount * sizes.row + sizes.footer + sizes.edge;
}

SheetBands layOutSheet(const SheetSizes& sizes, int top, int bottom) {
    SheetBands bands;
    bands.title = {top + sizes.edge, top + sizes.edge + sizes.title};
    bands.header = {bands.title.bottom, bands.title.bottom + sizes.header};
    bands.footer = {bottom - sizes.edge - sizes.footer, bottom - sizes.edge};
    bands.rows = {bands.header.bottom, bands.footer.top};
    return bands;
}

} // namespace Desk
