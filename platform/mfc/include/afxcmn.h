#pragma once

#include "afxwin.h"

#include <commctrl.h>

/// The header control. Items are known by index, which stays when the user drags them; where they stand is their order.
class ORTIN_MFC_API CHeaderCtrl : public CWnd {
    DECLARE_DYNAMIC(CHeaderCtrl)
public:
    using CWnd::Create;
    using CWnd::CreateEx;
    /// dwStyle: HDS_ and window styles.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// -1 on failure.
    int GetItemCount() const;
    /// phdi->mask says which members are to be fetched.
    BOOL GetItem(int nPos, HDITEM* pHeaderItem) const;
    BOOL SetItem(int nPos, HDITEM* pHeaderItem);
    /// The new item's index, or -1.
    int InsertItem(int nPos, HDITEM* phdi);
    BOOL DeleteItem(int nPos);

    /// Fills the place and size that a header in that area wants.
    BOOL Layout(HDLAYOUT* pHeaderLayout);
    /// Client coordinates of the header.
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const;
    /// The item at phdhti->pt, or -1; fills flags and iItem.
    int HitTest(LPHDHITTESTINFO phdhti);

    /// Index of the item that stands at a place from the left.
    int OrderToIndex(int nOrder) const;
    /// iCount -1 means as many as there are items; piArray holds that many.
    BOOL GetOrderArray(LPINT piArray, int iCount = -1);
    BOOL SetOrderArray(int iCount, LPINT piArray);

    int SetHotDivider(int nIndex);
    int SetHotDivider(CPoint pt);
    int GetBitmapMargin() const;
    int SetBitmapMargin(int nWidth);

    /// Called for items with HDF_OWNERDRAW; does nothing unless a derived class overrides it.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
