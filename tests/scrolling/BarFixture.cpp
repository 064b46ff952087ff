#include "BarFixture.h"

#include <sstream>
#include <utility>

namespace {

constexpr CPoint kFarOff(-1000, -1000);
constexpr const char* kChanges[] = {"moving", "moved", "sizing", "sized"};

BOOL WINAPI giveFakeCursor(POINT* point) {
    *point = FakeCursor::position;
    return TRUE;
}

} // namespace

CPoint FakeCursor::position = kFarOff;

FakeCursor::FakeCursor()
    : m_patch(::GetModuleHandleW(L"OrtinControls.dll"), "user32.dll", "GetCursorPos", &giveFakeCursor) {
    position = kFarOff;
}

void RecordingOwner::OnScrollChanged(AdvancedScroll::ChangeMessageInfo info) {
    std::ostringstream change;
    change << (m_log.empty() ? "" : "; ") << kChanges[info.type] << ' ';
    if (info.type == AdvancedScroll::MovementInProgress || info.delta != 0.0) {
        change << info.delta << ' ';
    }
    change << info.start << '-' << info.end;
    m_log += change.str();
    last = info;
    if (onChange) {
        onChange(info);
    }
}

std::string RecordingOwner::takeLog() {
    return std::exchange(m_log, {});
}

LRESULT WatchedBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    erased = erased || message == WM_ERASEBKGND;
    return AdvancedScroll::WindowProc(message, wParam, lParam);
}

LRESULT WatchedBar::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_TIMER) {
        ticksLeft += std::to_string(wParam) + "; ";
    }
    return AdvancedScroll::DefWindowProc(message, wParam, lParam);
}

BarFixture::BarFixture() {
    createBar();
}

BarFixture::~BarFixture() {
    owner.onChange = nullptr;
    ::ReleaseCapture();
}

void BarFixture::createBar() {
    if (!bar->Create(L"", WS_CHILD | WS_VISIBLE, CRect(CPoint(20, 20), CSize(kWidth, kHeight)), &host, 5)) {
        throw std::runtime_error("the bar cannot be made");
    }
    paint();
}

void BarFixture::show(double start, double end) {
    bar->SetCurrent(start, end);
    paint();
    log();
}

void BarFixture::resize(int width, int height) {
    bar->MoveWindow(20, 20, width, height);
    paint();
}

LRESULT BarFixture::turnWheel(int delta) {
    return bar->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, delta), MAKELPARAM(30, 30));
}

void BarFixture::send(UINT message, WPARAM flags, int x, int y) {
    bar->SendMessage(message, flags, MAKELPARAM(x, y));
}

void BarFixture::point(int x, int y) {
    FakeCursor::position = CPoint(x, y);
    bar->ClientToScreen(&FakeCursor::position);
}

void BarFixture::paint() {
    bar->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

std::string BarFixture::waits() {
    if (!::GetUpdateRect(bar->m_hWnd, nullptr, FALSE)) {
        return "nothing";
    }
    bar->erased = false;
    bar->UpdateWindow();
    return bar->erased ? "erase and paint" : "paint";
}

std::string BarFixture::cursor() {
    const HCURSOR shown = ::GetCursor();
    if (shown == ::LoadCursorW(nullptr, IDC_ARROW)) {
        return "arrow";
    }
    if (shown == ::LoadCursorW(nullptr, IDC_HAND)) {
        return "hand";
    }
    return shown == ::LoadCursorW(nullptr, IDC_SIZEWE) ? "size" : "other";
}
