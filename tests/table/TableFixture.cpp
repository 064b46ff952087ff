#include "TableFixture.h"

#include <algorithm>
#include <stdexcept>

#include "support/Pump.h"

std::string ReachableTable::takeMessages() {
    return std::exchange(m_messages, {});
}

LRESULT ReachableTable::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const bool ofBody = message >= 0x488 && message <= 0x490;
    const bool ofHeader = message >= 0x8044 && message <= 0x8046;
    if (ofBody || ofHeader) {
        std::ostringstream text;
        text << (m_messages.empty() ? "" : " ") << std::hex << message << std::dec << '(' << static_cast<int>(wParam)
             << ',' << static_cast<int>(lParam) << ')';
        m_messages += text.str();
    }
    return TableCtrl::WindowProc(message, wParam, lParam);
}

TableFixture::TableFixture(std::shared_ptr<Host> shared) : sharedHost(std::move(shared)), host(*sharedHost) {
    if (table.Create(kTableId, &host, false) == 0) {
        throw std::runtime_error("the table cannot be made");
    }
    table.SetTableHandler(&handler);
    table.MoveWindow(0, 0, kWidth, 300);
    support::pumpUntilIdle();
    forget();
}

TableFixture::~TableFixture() {
    // A misbehaviour ends with its test: the windows are taken down undisturbed.
    handler.onCall = nullptr;
    table.DestroyWindow();
}

void TableFixture::setColumns(const std::vector<double>& widths) {
    std::vector<std::pair<std::wstring, double>> columns;
    for (const double width : widths) {
        columns.emplace_back(std::wstring(1, static_cast<wchar_t>(L'A' + columns.size())), width);
    }
    table.SetColumns(columns);
    forget();
}

void TableFixture::addRows(const Words& words) {
    for (const unsigned __int64 word : words) {
        table.AddItem(word);
    }
    table.UpdateVScroll();
    support::pumpUntilIdle();
    forget();
}

void TableFixture::addManyRows(int count) {
    Words words;
    for (int word = 1; word <= count; ++word) {
        words.push_back(static_cast<unsigned __int64>(word));
    }
    addRows(words);
}

void TableFixture::select(int row) {
    handler.caret = row;
}

void TableFixture::sizeBody(int width, int height) {
    table.MoveWindow(0, 0, width, table.GetHeaderHeight() + height);
    table.UpdateListPos();
    support::pumpUntilIdle();
    forget();
}

void TableFixture::scrollTo(int position) {
    ::SetScrollPos(body(), SB_VERT, position, TRUE);
}

void TableFixture::press(int x, int y, WPARAM flags) const {
    ::SendMessageW(body(), WM_LBUTTONDOWN, flags, MAKELPARAM(x, y));
}

void TableFixture::release(int x, int y) const {
    ::SendMessageW(body(), WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

void TableFixture::click(int x, int y) const {
    press(x, y);
    release(x, y);
}

void TableFixture::moveTo(int x, int y, WPARAM flags) const {
    ::SendMessageW(body(), WM_MOUSEMOVE, flags, MAKELPARAM(x, y));
}

void TableFixture::doubleClick(int x, int y) const {
    ::SendMessageW(body(), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(x, y));
}

void TableFixture::key(UINT virtualKey) const {
    ::SendMessageW(body(), WM_KEYDOWN, virtualKey, 1);
}

void TableFixture::pressHeader(int x, int y) const {
    ::SendMessageW(header(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
}

void TableFixture::moveOnHeader(int x, int y) const {
    ::SendMessageW(header(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(x, y));
}

void TableFixture::releaseHeader(int x, int y) const {
    ::SendMessageW(header(), WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

void TableFixture::clickHeader(int id) const {
    const CRect item = headerItem(id);
    const int x = (item.left + item.right) / 2;
    const int y = (item.top + item.bottom) / 2;
    pressHeader(x, y);
    releaseHeader(x, y);
}

void TableFixture::paint() const {
    // For no window the system would redraw everybody's.
    if (const HWND list = body()) {
        ::RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    }
}

std::string TableFixture::describe() const {
    std::string text = "rows";
    for (int row = 0; row < table.GetItemCount(); ++row) {
        text += ' ' + std::to_string(table.GetItemData(row));
    }
    return text + " | caret " + std::to_string(handler.caret) + " | scroll " + std::to_string(scrollPosition());
}

int TableFixture::scrollMaximum() const {
    int minimum = 0;
    int maximum = 0;
    ::GetScrollRange(body(), SB_VERT, &minimum, &maximum);
    return maximum;
}

CSize TableFixture::bodySize() const {
    CRect client;
    ::GetClientRect(body(), &client);
    return client.Size();
}

CRect TableFixture::rectOf(HWND window) const {
    CRect rect;
    ::GetWindowRect(window, &rect);
    table.ScreenToClient(&rect);
    return rect;
}

std::vector<int> TableFixture::headerWidths() const {
    std::vector<int> widths;
    for (int id = 0; id < Header_GetItemCount(header()); ++id) {
        HDITEMW item{};
        item.mask = HDI_WIDTH;
        ::SendMessageW(header(), HDM_GETITEMW, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(&item));
        widths.push_back(item.cxy);
    }
    return widths;
}

std::vector<int> TableFixture::headerOrder() const {
    std::vector<int> order(static_cast<std::size_t>(Header_GetItemCount(header())));
    ::SendMessageW(header(), HDM_GETORDERARRAY, order.size(), reinterpret_cast<LPARAM>(order.data()));
    return order;
}

std::vector<double> TableFixture::realWidths() const {
    std::vector<double> widths;
    for (int id = 0; id < table.GetColumnCount(); ++id) {
        widths.push_back(table.GetColumnRealWidth(id));
    }
    return widths;
}

CRect TableFixture::headerItem(int id) const {
    CRect rect;
    ::SendMessageW(header(), HDM_GETITEMRECT, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(&rect));
    return rect;
}

std::string TableFixture::arrowOf(int id) const {
    HDITEMW item{};
    item.mask = HDI_FORMAT;
    ::SendMessageW(header(), HDM_GETITEMW, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(&item));
    std::string arrow = (item.fmt & HDF_SORTUP) != 0 ? "up" : "";
    arrow += (item.fmt & HDF_SORTDOWN) != 0 ? "down" : "";
    return arrow;
}
