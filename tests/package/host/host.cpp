#include <OrtinControls/OrtinControls.h>
#include <cstdio>

int main() {
    CWinApp application;
    AfxWinInit(GetModuleHandle(nullptr), nullptr, GetCommandLine(), SW_HIDE);
    CWnd window;
    window.CreateEx(0, AfxRegisterWndClass(0), L"host", WS_OVERLAPPEDWINDOW, CRect(0, 0, 400, 300), nullptr, 0);
    // What the headers of GDI+ hold in line is linked into the host itself.
    ULONG_PTR gdiPlus = 0;
    const Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&gdiPlus, &input, nullptr);
    const VectorCanvas::DrawContextGdiLine line;
    VectorCanvas::VectorPainterGdi painter;
    const bool drawn = painter.InitRender(CSize(40, 30)) && line.GetPen().GetWidth() == 1.0F;
    TableCtrl table;
    const bool made = table.Create(1, &window, false) != 0;
    table.AddColumn(L"Kurs", ITableView::AddAtEnd);
    return std::printf("table %s, columns: %d, frame %s\n", made ? "made" : "missing", table.GetColumnCount(),
                       drawn ? "begun" : "refused") < 0;
}
