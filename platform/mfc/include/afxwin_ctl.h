#pragma once

#include "afxwin_wnd.h"

// The controls that the system has always had. Operations that send the control one message keep that message's
// contract. The virtual drawing operations do nothing unless a derived class with an owner-drawn style overrides them.

class CBitmap;

/// A label, a picture or a frame.
class ORTIN_MFC_API CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)
public:
    using CWnd::Create;
    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID = 0xFFFF);

    /// The picture before; the control does not own it.
    HICON SetIcon(HICON hIcon);
    HICON GetIcon() const;
    HBITMAP SetBitmap(HBITMAP hBitmap);
    HBITMAP GetBitmap() const;

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

/// A push button, a check box, a radio button or a group frame.
class ORTIN_MFC_API CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)
public:
    using CWnd::Create;
    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    UINT GetState() const;
    void SetState(BOOL bHighlight);
    int GetCheck() const;
    void SetCheck(int nCheck);
    UINT GetButtonStyle() const;
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE);
    HICON SetIcon(HICON hIcon);
    HICON GetIcon() const;
    HBITMAP SetBitmap(HBITMAP hBitmap);
    HBITMAP GetBitmap() const;

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

/// A field for text. Positions count characters from 0.
class ORTIN_MFC_API CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)
public:
    using CWnd::Create;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// First in the low word, end in the high one.
    DWORD GetSel() const;
    void GetSel(int& nStartChar, int& nEndChar) const;
    /// A start of -1 selects nothing; an end of -1 is that of the text. The first form has both in a double word.
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE);
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE);

    BOOL GetModify() const;
    void SetModify(BOOL bModified = TRUE);
    BOOL SetReadOnly(BOOL bReadOnly = TRUE);
    /// Characters; 0 means as many as the system allows.
    void SetLimitText(UINT nMax);
    void LimitText(int nChars = 0);
    UINT GetLimitText() const;
    TCHAR GetPasswordChar() const;
    void SetPasswordChar(TCHAR ch);
    DWORD GetMargins() const;
    void SetMargins(UINT nLeft, UINT nRight);
    void GetRect(LPRECT lpRect) const;
    void SetRect(LPCRECT lpRect);
    void SetRectNP(LPCRECT lpRect);

    int GetLineCount() const;
    /// Not ended by a zero; at most nMaxLength characters.
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;
    int GetFirstVisibleLine() const;
    int LineFromChar(int nIndex = -1) const;
    int LineIndex(int nLine = -1) const;
    int LineLength(int nLine = -1) const;
    void LineScroll(int nLines, int nChars = 0);
    int CharFromPos(CPoint pt) const;
    CPoint PosFromChar(UINT nChar) const;

    BOOL CanUndo() const;
    BOOL Undo();
    void EmptyUndoBuffer();
    void Clear();
    void Copy();
    void Cut();
    void Paste();
};

/// A drop-down list, with or without a field. Items are known by index from 0; CB_ERR (-1) tells of failure.
class ORTIN_MFC_API CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)
public:
    using CWnd::Create;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCount() const;
    int GetCurSel() const;
    int SetCurSel(int nSelect);
    int GetTopIndex() const;
    int SetTopIndex(int nIndex);
    DWORD_PTR GetItemData(int nIndex) const;
    int SetItemData(int nIndex, DWORD_PTR dwItemData);
    void* GetItemDataPtr(int nIndex) const;
    int SetItemDataPtr(int nIndex, void* pData);
    int GetItemHeight(int nIndex) const;
    int SetItemHeight(int nIndex, UINT cyItemHeight);
    int GetDroppedWidth() const;
    int SetDroppedWidth(UINT nWidth);

    int AddString(LPCTSTR lpszString);
    int InsertString(int nIndex, LPCTSTR lpszString);
    int DeleteString(UINT nIndex);
    void ResetContent();
    int FindString(int nStartAfter, LPCTSTR lpszString) const;
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const;
    int SelectString(int nStartAfter, LPCTSTR lpszString);
    int GetLBText(int nIndex, LPTSTR lpszText) const;
    void GetLBText(int nIndex, CString& rString) const;
    int GetLBTextLen(int nIndex) const;

    DWORD GetEditSel() const;
    /// As CEdit::SetSel; CB_ERR without a field.
    BOOL SetEditSel(int nStartChar, int nEndChar);
    BOOL LimitText(int nMaxChars);
    void Clear();
    void Copy();
    void Cut();
    void Paste();

    void ShowDropDown(BOOL bShowIt = TRUE);
    BOOL GetDroppedState() const;
    void GetDroppedControlRect(LPRECT lprect) const; ///< screen
    int SetExtendedUI(BOOL bExtended = TRUE);
    BOOL GetExtendedUI() const;
    BOOL GetComboBoxInfo(PCOMBOBOXINFO pcbi) const;

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

/// A scroll bar that is a window of its own.
class ORTIN_MFC_API CScrollBar : public CWnd {
    DECLARE_DYNAMIC(CScrollBar)
public:
    using CWnd::Create;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetScrollPos() const;
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE);
    void GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const;
    void SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    BOOL SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    int GetScrollLimit();
    void ShowScrollBar(BOOL bShow = TRUE);
    BOOL EnableScrollBar(UINT nArrowFlags = ESB_ENABLE_BOTH);
};
