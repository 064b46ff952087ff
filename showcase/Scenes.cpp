#include "Scenes.h"

#include "PackedPoint.h"
#include "PngFile.h"
#include "ScopedSelection.h"
#include "StandardStreams.h"
#include "chart/ChartScene.h"

namespace Desk {

namespace {

constexpr std::size_t PhraseLength = 4;
/// Where the status window of a print job names the page.
constexpr int StatusPageItem = 204;

/// The status window of the job that this thread prints; null if there is none.
CWnd* statusWindow() {
    HWND found = nullptr;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM place) -> BOOL {
            if (!::IsWindowVisible(window) || !::GetDlgItem(window, StatusPageItem))
                return TRUE;
            *reinterpret_cast<HWND*>(place) = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found ? CWnd::FromHandle(found) : nullptr;
}

} // namespace

Scenes::Scenes(MakeDesk makeDesk, std::wstring folder, std::optional<Printer> printer)
    : m_makeDesk(std::move(makeDesk)),
      m_folder(std::move(folder)),
      m_printer(std::move(printer)) {}

bool Scenes::write(const std::optional<std::wstring>& only) {
    for (const std::wstring& name : sceneNames())
        if ((!only || *only == name) && (m_printer || !needsPrinter(name)) && !writeScene(name))
            return false;
    return true;
}

bool Scenes::writeScene(const std::wstring& name) {
    m_desk = m_makeDesk();
    if (!m_desk)
        return false;
    m_desk->setTheme(name.ends_with(L"-black") || name == L"table-found" ? DeskTheme::Black : DeskTheme::White);
    m_desk->SetFocus();
    if (name == L"table-sorted")
        showSorted();
    else if (name == L"table-moving-column")
        takeColumn(3, 1);
    else if (name == L"table-found")
        showFound();
    settle(*m_desk);
    if (name.starts_with(L"chart-"))
        showChart(name);
    bool written = false;
    if (name.starts_with(L"info-"))
        written = writeInfo(name);
    else if (name.starts_with(L"preview-"))
        written = writePreview(name);
    else if (name.starts_with(L"printer-dialog-"))
        written = writePrinterDialog(name);
    else if (name.starts_with(L"print-status"))
        written = writePrintStatus(name);
    else if (name == L"chart-ids")
        written = tellWritten(writeIds(m_desk->chart().canvas().picture(), fileOf(name)), name);
    else
        written = writePicture(*m_desk, name);
    m_desk.reset();
    return written;
}

bool Scenes::writeInfo(const std::wstring& name) {
    InfoWindow& info = m_desk->info();
    if (!info.openOver(*m_desk))
        return false;
    info.ShowWindow(SW_SHOWNOACTIVATE);
    settle(info);
    return writePicture(info, name);
}

bool Scenes::writePreview(const std::wstring& name) {
    const std::unique_ptr<PreviewDialog> preview = m_desk->printing().makePreview(*m_printer);
    if (!preview->open(*m_desk))
        return false;
    preview->ShowWindow(SW_SHOWNOACTIVATE);
    settle(*preview);
    const bool written = writePicture(*preview, name);
    preview->DestroyWindow();
    return written;
}

bool Scenes::writePrinterDialog(const std::wstring& name) {
    quotes().selectAllRows();
    const std::unique_ptr<PrinterQuestion> question = m_desk->printing().makeQuestion(*m_printer);
    if (!question->dialog.open(*m_desk))
        return false;
    question->dialog.ShowWindow(SW_SHOWNOACTIVATE);
    settle(question->dialog);
    const bool written = writePicture(question->dialog, name);
    question->dialog.DestroyWindow();
    return written;
}

/// Begins to print the whole table, and takes a picture of the status window while a page is being printed. One
/// document is enough: in the black theme the user then cancels.
bool Scenes::writePrintStatus(const std::wstring& name) {
    const bool cancels = name.ends_with(L"-black");
    bool written = false;
    quotes().onPageDrawn = [&](int page) {
        CWnd* const status = page == 1 ? statusWindow() : nullptr;
        if (!status)
            return;
        settle(*status);
        written = writePicture(*status, name);
        if (cancels)
            status->SendMessage(WM_COMMAND, IDCANCEL);
    };
    const PrintReport report = m_desk->printing().printAll(*m_printer);
    quotes().onPageDrawn = nullptr;
    if (cancels)
        return written && report.outcome == PrintOutcome::Failed;
    if (report.outcome == PrintOutcome::Sent)
        printLine(report.text);
    else
        printError(report.text);
    return written && report.outcome == PrintOutcome::Sent;
}

QuotesHandler& Scenes::quotes() {
    return static_cast<QuotesHandler&>(*m_desk->table().GetHandler());
}

void Scenes::showSorted() {
    QuotesTable& table = m_desk->table();
    const int last = table.GetColumnCount() - 1;
    clickHeader(last);
    clickHeader(last);
    table.SelectItem(0, true);
}

void Scenes::showFound() {
    FindBox& findBox = m_desk->strip().findBox();
    const QuoteBook& book = quotes().book();
    const std::wstring phrase = book.size() > 0 ? book.text(0, QuoteColumn::Sector).substr(0, PhraseLength) : L"a";
    findBox.edit();
    for (const wchar_t letter : phrase)
        findBox.SendMessage(WM_CHAR, letter);
    // A blinking caret would be in one picture and not in the next.
    ::HideCaret(findBox);
}

bool Scenes::writePicture(CWnd& shown, const std::wstring& name) {
    CRect client;
    shown.GetClientRect(&client);
    CClientDC window(&shown);
    CDC memory;
    memory.CreateCompatibleDC(&window);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&window, client.Width(), client.Height());
    {
        const ScopedSelection selected(memory, bitmap);
        memory.BitBlt(0, 0, client.Width(), client.Height(), &window, 0, 0, SRCCOPY);
    }
    return tellWritten(writePng(bitmap, fileOf(name)), name);
}

std::wstring Scenes::fileOf(const std::wstring& name) const {
    return m_folder + L"\\" + name + L".png";
}

bool Scenes::tellWritten(bool written, const std::wstring& name) const {
    if (written)
        printLine(fileOf(name));
    else
        printError(fileOf(name) + L": nie można zapisać; sprawdź prawa i miejsce na dysku");
    return written;
}

void Scenes::showChart(const std::wstring& name) {
    ChartScene scene(m_desk->chart());
    if (name == L"chart-zoomed")
        scene.zoomIn();
    // What comes last is selected.
    if (name == L"chart-black") {
        scene.drawTrendLine();
        scene.selectRange();
    } else {
        scene.selectRange();
        scene.drawTrendLine();
    }
    if (name == L"chart-hover")
        scene.pointAtAverage();
    settle(*m_desk);
}

CPoint Scenes::headerCentre(int position) {
    CRect rect;
    QuotesTable& table = m_desk->table();
    table.header()->SendMessage(HDM_GETITEMRECT, static_cast<WPARAM>(table.GetColumnId(position)),
                                reinterpret_cast<LPARAM>(&rect));
    return rect.CenterPoint();
}

void Scenes::clickHeader(int position) {
    CWnd* header = m_desk->table().header();
    const CPoint centre = headerCentre(position);
    header->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, packed(centre));
    header->SendMessage(WM_LBUTTONUP, 0, packed(centre));
}

/// Presses on a column's header and moves over another one; the release never comes.
void Scenes::takeColumn(int from, int to) {
    CWnd* header = m_desk->table().header();
    header->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, packed(headerCentre(from)));
    header->SendMessage(WM_MOUSEMOVE, MK_LBUTTON, packed(headerCentre(to)));
}

void Scenes::settle(CWnd& window) {
    // What waits in the queue stays there: it tells of the real mouse, which has no part in a scene.
    window.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

} // namespace Desk
