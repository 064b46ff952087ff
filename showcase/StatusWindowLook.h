#pragma once

#include "DeskControls.h"
#include "DeskFonts.h"

namespace Desk {

/// While it lives, the status window of a print job of this thread appears in the colours of the theme: the library
/// makes that window, and gives a host no other hold on it. One at a time.
class StatusWindowLook {
public:
    /// `fonts` outlive the object.
    explicit StatusWindowLook(DeskFonts& fonts);
    ~StatusWindowLook();
    StatusWindowLook(const StatusWindowLook&) = delete;
    StatusWindowLook& operator=(const StatusWindowLook&) = delete;

private:
    static LRESULT CALLBACK watch(int code, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                   DWORD_PTR look);

    void dress(HWND window);
    HBRUSH background(HDC dc);

    static StatusWindowLook* S_current;

    DeskFonts& m_fonts;
    HHOOK m_hook = nullptr;
    DeskButton m_cancel;
    CBrush m_background;
};

} // namespace Desk
