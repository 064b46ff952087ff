// The objects that exist from load to unload. They stand in one file because their order counts: each is made after the
// one above it and unmade before it.

#include <OrtinControls/TableCtrl.h>
#include <XTToolkitPro.h>

UniqueMessage TableCtrl::Sm_tableViewDataChangedMessage(L"TableCtrl_TableViewDataChanged_message");

const int kMinColumnWidth = XTPDpiHelper().ScaleX(16, 96);
