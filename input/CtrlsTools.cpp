#include <OrtinControls/CtrlsTools.h>

namespace CtrlsTools {

namespace {

constexpr int kLongestWindowText = 170;
constexpr int kTextTooLong = 1;
constexpr const wchar_t* kTextTooLongMessage =
    L"Tekst: %s... jest za długi. Maksymalna długość tekstu wynosi %d znaków";

CWnd* childOf(CWnd* parent, int id) {
    return parent == nullptr ? nullptr : parent->GetDlgItem(id);
}

bool hasHandle(const CWnd* wnd) {
    return wnd != nullptr && wnd->GetSafeHwnd() != nullptr;
}

} // namespace

void EnableWindow(CWnd* parent, int id, int enable) {
    if (CWnd* const child = childOf(parent, id)) {
        child->EnableWindow(enable);
    }
}

void ShowWindow(CWnd* parent, int id, int show) {
    if (CWnd* const child = childOf(parent, id)) {
        child->ShowWindow(show);
    }
}

bool IsWindowVisible(CWnd* parent, int id) {
    const CWnd* const child = childOf(parent, id);
    return child != nullptr && child->IsWindowVisible() == TRUE;
}

// The signature is fixed.
void SetWindowTextW(CWnd* parent, int id, CString text) { // NOLINT(performance-unnecessary-value-param)
    if (CWnd* const child = childOf(parent, id)) {
        child->SetWindowTextW(text);
    }
}

void MoveCenterXControl(CWnd* parent, int id, int centerX) {
    CWnd* const child = childOf(parent, id);
    if (child == nullptr) {
        return;
    }
    CRect rect = GetWindowRectangle(child, parent);
    const int center = (rect.left + rect.right) / 2;
    if (center != centerX) {
        rect.OffsetRect(centerX - center, 0);
        child->MoveWindow(&rect, TRUE);
    }
}

int SetWindowPos(CWnd* wnd, CWnd const* after, CRect const& rect, unsigned int flags) {
    return wnd == nullptr ? 0 : wnd->SetWindowPos(after, rect.left, rect.top, rect.Width(), rect.Height(), flags);
}

ParameterStatus IsAppropriateWindowText(CString const& text) {
    if (text.GetLength() <= kLongestWindowText) {
        return {};
    }
    CString message;
    message.Format(kTextTooLongMessage, text.Left(kLongestWindowText).GetString(), kLongestWindowText);
    return ParameterStatus(kTextTooLong, message.GetString());
}

bool IsWindowModal(HWND const wnd) {
    if (wnd == nullptr || (::GetWindowLongW(wnd, GWL_STYLE) & WS_CHILD) != 0) {
        return false;
    }
    HWND const owner = ::GetWindow(wnd, GW_OWNER);
    return owner != nullptr && !::IsWindowEnabled(owner);
}

CRect GetWindowRectangle(CWnd const* const wnd, CWnd const* const relativeTo) {
    CRect rect = GetClientRectangle(wnd);
    if (hasHandle(wnd) && hasHandle(relativeTo)) {
        relativeTo->ScreenToClient(&rect);
    }
    return rect;
}

CRect GetClientRectangle(CWnd const* const wnd) {
    CRect rect;
    if (hasHandle(wnd)) {
        wnd->GetWindowRect(&rect);
    }
    return rect;
}

bool IsDescendant(HWND const parent, HWND child) {
    if (parent == child) {
        return true;
    }
    while (child != nullptr) {
        child = ::GetParent(child);
        if (child == parent) {
            return child != nullptr;
        }
    }
    return false;
}

void RecalculateCtrlArea(CWnd* const wnd) {
    if (hasHandle(wnd)) {
        wnd->SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_FRAMECHANGED);
    }
}

} // namespace CtrlsTools
