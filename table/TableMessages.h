#pragma once

/// The private window messages between a table, its header, its body and its owner. All are sent, none is posted.
namespace TableMessages {

/// Body to table: a column border is being dragged. wParam column, lParam new width; 0 accepted, -1 refused.
inline constexpr unsigned int kTrackColumnWidth = 0x488;
/// Body to table: the border drag has ended.
inline constexpr unsigned int kEndTrackColumnWidth = 0x489;
/// Body to table: double click on a border. wParam column.
inline constexpr unsigned int kBorderDoubleClick = 0x490;
/// Table to owner: the content width has changed. wParam sum of the visible header widths, lParam control id.
inline constexpr unsigned int kContentWidthChanged = 0x8044;
/// Header to table: a column was dropped. wParam source position, lParam target position.
inline constexpr unsigned int kMoveColumn = 0x8045;
/// Header to table: may the column be dropped here? wParam source position, lParam target position; 0 yes, -1 no.
inline constexpr unsigned int kCanMoveColumn = 0x8046;

} // namespace TableMessages
