#pragma once

#include <OrtinControls/TableCtrl.h>

#include "ColumnModel.h"
#include "TableHeaderCtrl.h"
#include "TableList.h"

/// What a table holds. Taken apart from last to first: columns and font before the windows that show them.
struct TableCtrlState {
    explicit TableCtrlState(ITableView* view) : list(view) {}

    TableList list;
    TableHeaderCtrl header;
    CFont headerFont;
    ColumnModel columns{kMinColumnWidth};

    ITableHandler* handler = nullptr;
    /// Between `BeginUpdate` and `FinishUpdate`.
    bool updating = false;
    bool headerHidden = false;
    bool endSizePending = false;

    bool sortDescending = false;
    int sortColumn = 0;
    /// Not 0: sorted by row, so that no column shows the arrow.
    int sortRow = 0;
    bool sortOnHeaderClick = false;
    bool headerSortDescending = false;
};
