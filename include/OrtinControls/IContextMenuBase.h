#pragma once

#include <OrtinControls/Export.h>
#include <afxwin.h>

/// The host's hook for a context menu. A control holds it by `std::shared_ptr` and never looks inside.
class ORTIN_CONTROLS_API IContextMenuBase {
public:
    /// `window` is the window that the menu belongs to. It is not owned and may be null if the host does not use it.
    explicit IContextMenuBase(CWnd* window);
    IContextMenuBase(const IContextMenuBase&) = default;
    IContextMenuBase& operator=(const IContextMenuBase& other);
    virtual ~IContextMenuBase();

    /// `point` is in screen coordinates, as WM_CONTEXTMENU brings it: (-1, -1) when a key asked for the menu.
    virtual void ShowContextMenu(CPoint point) = 0;

protected:
    CWnd* m_window;
};
