// The objects that exist from load to unload. They stand in one file because their order counts: each is made after the
// one above it and unmade before it.

#include <OrtinControls/PrintStrategy.h>
#include <OrtinControls/TableCtrl.h>
#include <XTToolkitPro.h>

PrintStrategy::Prints PrintStrategy::Sm_currentPrints;
std::mutex PrintStrategy::PrintStrategyCurrentPrints;

UniqueMessage TableCtrl::Sm_tableViewDataChangedMessage(L"TableCtrl_TableViewDataChanged_message");

const int kMinColumnWidth = XTPDpiHelper().ScaleX(16, 96);
