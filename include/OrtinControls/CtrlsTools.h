#pragma once

#include <OrtinControls/Export.h>
#include <OrtinFoundation/ParameterStatus.h>
#include <afxwin.h>

/// Null-safe shorthand for what a dialog does with its child controls. With a null window each operation does nothing,
/// or returns what is named.
namespace CtrlsTools {

ORTIN_CONTROLS_API void EnableWindow(CWnd* parent, int id, int enable);
ORTIN_CONTROLS_API void ShowWindow(CWnd* parent, int id, int show);
/// False without a parent or a child.
ORTIN_CONTROLS_API bool IsWindowVisible(CWnd* parent, int id);
ORTIN_CONTROLS_API void SetWindowTextW(CWnd* parent, int id, CString text);
/// Moves the child so that its centre, in whole pixels, lies at `centerX` of the parent's client area.
ORTIN_CONTROLS_API void MoveCenterXControl(CWnd* parent, int id, int centerX);
/// `rect` is in the coordinates of the window's parent. Gives the result of `CWnd::SetWindowPos`, 0 for a null `wnd`.
ORTIN_CONTROLS_API int SetWindowPos(CWnd* wnd, CWnd const* after, CRect const& rect, unsigned int flags);
/// Success for up to 170 characters; else code 1 with a message that shows the first 170.
ORTIN_CONTROLS_API ParameterStatus IsAppropriateWindowText(CString const& text);
/// True for an owned window, not a child, whose owner is disabled.
ORTIN_CONTROLS_API bool IsWindowModal(HWND const wnd);
/// The window rectangle in the client coordinates of `relativeTo`, or in screen coordinates if that has no handle;
/// empty for a null or handle-less `wnd`.
ORTIN_CONTROLS_API CRect GetWindowRectangle(CWnd const* const wnd, CWnd const* const relativeTo);
/// Despite its name the window rectangle in screen coordinates: hosts rely on it.
ORTIN_CONTROLS_API CRect GetClientRectangle(CWnd const* const wnd);
/// True if `child` is `parent`, or lies in it or is owned by it at any depth.
ORTIN_CONTROLS_API bool IsDescendant(HWND const parent, HWND child);
/// Forces a new calculation of the non-client area.
ORTIN_CONTROLS_API void RecalculateCtrlArea(CWnd* const wnd);

} // namespace CtrlsTools
