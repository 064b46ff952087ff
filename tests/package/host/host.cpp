#include <OrtinControls/OrtinControls.h>
#include <cstdio>

int main() {
    CWinApp application;
    AfxWinInit(GetModuleHandle(nullptr), nullptr, GetCommandLine(), SW_HIDE);
    CWnd window;
    window.CreateEx(0, AfxRegisterWndClass(0), L"host", WS_OVERLAPPEDWINDOW, CRect(0, 0, 400, 300), nullptr, 0);
    TableCtrl table;
    const bool made = table.Create(1, &window, false) != 0;
    table.AddColumn(L"Kurs", ITableView::AddAtEnd);
    return std::printf("table %s, columns: %d\n", made ? "made" : "missing", table.GetColumnCount()) < 0;
}
