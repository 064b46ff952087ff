#pragma once

#include <map>
#include <memory>

#include <OrtinControls/Export.h>
#include <XTToolkitPro.h>

class IPrintable;
class PrintInfoEx;

/// Shows the pages of a printable in a scrolling column, without a spooler.
///
/// It stands in a dialog in the place of a placeholder control. `Init`, `Create`, then `Update` with the printer's
/// context, and `Update` again whenever the document or the choices of the print change. State and printable are not
/// owned and outlive the window; the state has a dialog context, and its `CurrentPage` means nothing outside a paint.
/// `OnEndPrinting` is the owner's to call.
///
/// `Update` lets the printable divide its document; a page is drawn once, by `OnPrint` without `OnPrepareDC`, when it
/// first comes into view, and kept as a bitmap of the printer's pixels: 4 bytes for each, whatever the scale; the pages
/// in view are kept once more as they stand there, where that is smaller. A page of A4 costs 3.6 MB at 96 dots in an
/// inch and 139 MB at 600, so that a host that does not want to pay for it gives a context of a coarser device. A unit
/// of the print area is a pixel of the bitmap: what the print area has beyond the pixels of the device is not shown.
///
/// Ctrl with the wheel and two buttons in the lower middle change the scale. The buttons are hidden, from five seconds
/// after `Create` on, while the mouse is elsewhere. The client area is filled with colour 35 of
/// `SystemColors::GetXThemeColor`, the shadows of the pages with colour 54; pages are white in both themes.
class ORTIN_CONTROLS_API PrintPreviewWindow : public CWnd {
    DECLARE_DYNAMIC(PrintPreviewWindow)
public:
    PrintPreviewWindow();
    ~PrintPreviewWindow() override;
    PrintPreviewWindow(const PrintPreviewWindow&) = delete;
    PrintPreviewWindow& operator=(const PrintPreviewWindow&) = delete;

    void Init(PrintInfoEx* printInfo, IPrintable* printable);
    using CWnd::Create;
    /// Takes rectangle and style of the control `id` of `parent` and destroys it. Gives 0 if there is none or the
    /// window cannot be made.
    int Create(unsigned int id, CWnd* parent);
    /// Divides the document for the device and forgets the pages that were drawn. The context stays the caller's.
    /// Without a window, or before `Init`, nothing happens.
    void Update(HDC printerDC);
    /// Makes a page that is wider at its own size than the client area without the margins exactly as wide as that. Any
    /// other page keeps its scale. The margins are those at the scale of before: call it first, for a page that was
    /// made smaller than the window has wide ones and stays as it is.
    void ScaleToAvailableArea();

protected:
    /// A button with rounded corners.
    class ORTIN_CONTROLS_API Button : public CXTPButton {
    public:
        void OnDraw(CDC* dc) override;
    };

    void CreateButtons();
    void RepositionButtons();
    /// Adds to the scale, in pixels of the preview for one of the page; refused where that would be below 0.01.
    void ChangePreviewAreaScale(double delta);
    /// Whether the bar is shown.
    bool UpdateVerticalScroll();
    bool UpdateHorizontalScroll();
    void Draw(CDC* dc);
    /// Selects the bitmap of a page, which is drawn if it must be, into `memoryDC`, which it outlives. Null if memory
    /// lacks: then the page is missing, and tried again at the next paint.
    std::shared_ptr<CBitmap> SetupPageBitmap(int page, CDC* dc, CDC* memoryDC);
    void DrawScene(CDC* dc, const CRect& rect);
    void DrawPageScene(CDC* dc, const CRect& rect);
    void DrawPageShadow(CDC* dc, int x, int y);
    /// Places in the column, counted from 0; -1 for none.
    void FindVisiblePages(int& first, int& last);
    void HandleScroll(unsigned int code, unsigned int position, int bar, int extent);
    /// Pixels: the pages, 15 between them, 5 above and below; -1 before `Init`.
    int CalculateTotalHeight();
    void ShowButtons(int show);

    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnPaint();
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnBnIncreasePreviewSize();
    afx_msg void OnBnDecreasePreviewSize();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnTimer(UINT_PTR id);
    DECLARE_MESSAGE_MAP()

private:
    class StretchedPages;

    void centrePages();
    bool updateBar(int bar, int clientExtent, int totalExtent);
    bool isInHotRect(CPoint point) const;

    PrintInfoEx* m_printInfo = nullptr;
    IPrintable* m_printable = nullptr;
    std::map<int, std::shared_ptr<CBitmap>> m_pageBitmaps;
    std::unique_ptr<StretchedPages> m_stretchedPages;
    CRect m_pageRect;
    CRect m_previewRect;
    int m_leftMargin;
    double m_scale = 1.0;
    Button m_increaseButton;
    Button m_decreaseButton;
    bool m_buttonsAutoHide = false;
    CRect m_buttonsHotRect;
    bool m_inOnSize = false;
    bool m_drawing = false;
    bool m_drawAgain = false;
    /// Counts the calls of `Update`: a page that was being drawn meanwhile belongs to the document of before.
    unsigned int m_updates = 0;
};
