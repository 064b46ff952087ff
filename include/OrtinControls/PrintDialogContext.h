#pragma once

#include <OrtinControls/Export.h>
#include <afxwin.h>

/// What of a document is printed. The values are bits: a set of them tells which choices a dialog offers.
enum EPrintOption : int {
    PrintOptionAll = 1,
    PrintOptionPages = 2,     ///< the pages from `FromPage` to `ToPage`
    PrintOptionSelection = 4, ///< the selection of the printable
    PrintOptionCustom = 256,  ///< a choice that the printable added; `CustomPrintOptionId` tells which
};

/// What the user chose in the host's printer dialog. The host fills it, and keeps it for the length of the run.
///
/// It owns the printer's device context and deletes it. A copy holds the same handle, not one of its own, and an
/// assignment forgets the handle that was held: of all copies only one may live on as the owner.
class ORTIN_CONTROLS_API PrintDialogContext {
public:
    PrintDialogContext();
    PrintDialogContext(const PrintDialogContext& other);
    PrintDialogContext& operator=(const PrintDialogContext& other);
    ~PrintDialogContext();

    /// Takes the ownership and deletes the context that was held, be it the same one: then what is held is dead.
    void PrinterDC(HDC dc);
    HDC PrinterDC() const;
    void PrinterPortName(CString name);
    CString PrinterPortName() const;
    void PrinterName(CString name);
    CString PrinterName() const;

    /// Pages count from 1. A `FromPage` above `ToPage` asks for the pages in reverse order.
    void FromPage(int page);
    int FromPage() const;
    void ToPage(int page);
    int ToPage() const;

    void CustomPrintOptionId(unsigned int id);
    unsigned int CustomPrintOptionId() const;
    void PrintOption(EPrintOption option);
    EPrintOption PrintOption() const;
    void FitToPageArea(bool fit);
    bool FitToPageArea() const;

private:
    void ReleaseCurrentDC();

    HDC m_printerDC = nullptr;
    CString m_printerPortName;
    CString m_printerName;
    int m_fromPage = 1;
    int m_toPage = 1;
    unsigned int m_customPrintOptionId = 0;
    EPrintOption m_printOption = PrintOptionAll;
    bool m_fitToPageArea = false;
};
