#pragma once

#include <afxwin.h>

/// A printer's context as an object, for the length of a scope: lent by its owner, and given back whatever happens.
class LentPrinterDC : public CDC {
public:
    explicit LentPrinterDC(HDC printer) {
        Attach(printer);
        m_bPrinting = TRUE;
    }
    LentPrinterDC(const LentPrinterDC&) = delete;
    LentPrinterDC& operator=(const LentPrinterDC&) = delete;
    ~LentPrinterDC() override { Detach(); }
};
