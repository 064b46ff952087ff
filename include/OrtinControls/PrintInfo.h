#pragma once

#include <OrtinControls/Export.h>
#include <OrtinControls/PrintDialogContext.h>
#include <afxwin.h>

/// The state of a print run as the printable sees it: the sheet, the page in work, the number of pages, and whether to
/// go on. Pages count from 1.
///
/// The context of the dialog is not owned and outlives the object. The queries that read it must not be called on an
/// object without one.
class ORTIN_CONTROLS_API PrintInfo {
public:
    PrintInfo();
    PrintInfo(const PrintInfo& other);
    PrintInfo& operator=(const PrintInfo& other);
    virtual ~PrintInfo();

    /// Whether the dialog offers the choice; `option` may be several of them joined.
    virtual void EnablePrintOption(EPrintOption option, bool enable) = 0;
    /// A choice of the printable's own. When the user takes it, the option is PrintOptionCustom and `id` its
    /// `CustomPrintOptionId`.
    virtual void AddPrintOption(unsigned int id, CString text) = 0;
    virtual void EnableFitToPage(bool enable) = 0;

    /// Sets the mapping of `dc` and makes the whole printable area of the sheet the print area, in the logical units of
    /// that mapping. There are no margins but those of the printer.
    ///
    /// With `useLogicalInches` a unit is 1/96 inch, and `objectRect` is not read. Otherwise the width of `objectRect`
    /// becomes that of the sheet, with one scale for both axes, and the print area begins at the window origin of `dc`.
    /// An object that is exactly as wide as the sheet in device pixels leaves the mapping alone.
    void PrepareDCAndPrintArea(bool useLogicalInches, CDC* dc, const CRect& objectRect);

    EPrintOption PrintOption() const;
    unsigned int CustomPrintOptionId() const;
    bool FitToPageArea() const;
    HDC PrinterDC() const;
    CString PrinterPortName() const;
    CString PrinterDeviceName() const;

    CRect PrintAreaInObjectUnits() const;
    void PrintAreaInObjectUnits(const CRect& area);
    int CurrentPage() const;
    /// Stores the number of pages of the document.
    void Update(int pages);
    bool ContinuePrinting() const;
    /// A printable that clears it while it prepares a page ends the run before that page.
    void ContinuePrinting(bool goOn);

    // The order of the fields is part of the contract.
protected:
    CRect m_printArea;
    const PrintDialogContext* m_dialogContext = nullptr;
    int m_currentPage = 0;

public:
    /// The number of pages of the document. A printable may also write it instead of calling `Update`.
    int m_pagesCount = 0;

protected:
    bool m_continuePrinting = true;
};
