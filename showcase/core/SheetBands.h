#pragma once

namespace Desk {

/// From `top` down to, but without, `bottom`; in pixels of the table.
struct SheetBand {
    int top = 0;
    int bottom = 0;

    int height() const { return bottom - top; }
    bool operator==(const SheetBand&) const = default;
};

/// What a printed page shows besides its rows, in pixels of the table.
struct SheetSizes {
    int edge = 0; ///< left empty at each side of the sheet
    int title = 0;
    int header = 0;
    int footer = 0;
    int row = 0;
};

/// The bands of a printed page from the top, each below the one before.
struct SheetBands {
    SheetBand title;
    SheetBand header;
    SheetBand rows;
    SheetBand footer;
};

/// The pages of a printed table are counted by the heights of rows alone. What else stands on a page has its room
/// outside the margins, where no rows are counted.
int marginAboveRows(const SheetSizes& sizes);
/// The last page may hold the first of its rows and the last one beyond what was counted for it: two rows more.
int marginBelowRows(const SheetSizes& sizes);

/// Where the bands lie on a sheet from `top` to `bottom`.
SheetBands layOutSheet(const SheetSizes& sizes, int top, int bottom);

} // namespace Desk
