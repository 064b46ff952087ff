#pragma once

#include <afxwin.h>

#include <string>

/// A top-level window that is never shown.
class HiddenFrame : public CWnd {
public:
    HiddenFrame() { CreateEx(0, nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 300, 200), nullptr, 0); }
};

/// The numbers that tests give to their own messages.
inline constexpr UINT testMessage = WM_APP + 1;
inline constexpr UINT otherTestMessage = WM_APP + 2;

/// A log of what was called, one word each.
class CallLog {
public:
    void add(const std::string& word) { m_text += (m_text.empty() ? "" : " ") + word; }
    std::string take() {
        std::string text;
        text.swap(m_text);
        return text;
    }

private:
    std::string m_text;
};
