#include "Scenes.h"

#include "PngFile.h"
#include "ScopedSelection.h"
#include "StandardStreams.h"

namespace Desk {

namespace {

constexpr std::size_t PhraseLength = 4;

LPARAM packed(CPoint point) {
    return MAKELPARAM(point.x, point.y);
}

} // namespace

Scenes::Scenes(MakeDesk makeDesk, std::wstring folder) : m_makeDesk(std::move(makeDesk)), m_folder(std::move(folder)) {}

bool Scenes::write(const std::optional<std::wstring>& only) {
    for (const std::wstring& name : sceneNames())
        if ((!only || *only == name) && !writeScene(name))
            return false;
    return true;
}

bool Scenes::writeScene(const std::wstring& name) {
    m_desk = m_makeDesk();
    if (!m_desk)
        return false;
    m_desk->setTheme(name == L"table-black" || name == L"table-found" ? DeskTheme::Black : DeskTheme::White);
    m_desk->SetFocus();
    if (name == L"table-sorted")
        showSorted();
    else if (name == L"table-moving-column")
        takeColumn(3, 1);
    else if (name == L"table-found")
        showFound();
    settle();
    const bool written = writePicture(name);
    m_desk.reset();
    return written;
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
    const auto* quotes = static_cast<const QuotesHandler*>(m_desk->table().GetHandler());
    const std::wstring phrase =
        quotes->book().size() > 0 ? quotes->book().text(0, QuoteColumn::Sector).substr(0, PhraseLength) : L"a";
    findBox.edit();
    for (const wchar_t letter : phrase)
        findBox.SendMessage(WM_CHAR, letter);
    // A blinking caret would be in one picture and not in the next.
    ::HideCaret(findBox);
}

bool Scenes::writePicture(const std::wstring& name) {
    CRect client;
    m_desk->GetClientRect(&client);
    CClientDC window(m_desk.get());
    CDC memory;
    memory.CreateCompatibleDC(&window);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&window, client.Width(), client.Height());
    {
        const ScopedSelection selected(memory, bitmap);
        memory.BitBlt(0, 0, client.Width(), client.Height(), &window, 0, 0, SRCCOPY);
    }
    const std::wstring file = m_folder + L"\\" + name + L".png";
    if (!writePng(bitmap, file)) {
        printError(file + L": nie można zapisać; sprawdź prawa i miejsce na dysku");
        return false;
    }
    printLine(file);
    return true;
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

void Scenes::settle() {
    // What waits in the queue stays there: it tells of the real mouse, which has no part in a scene.
    m_desk->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

} // namespace Desk
