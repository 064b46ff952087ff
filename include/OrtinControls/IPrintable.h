#pragma once

#include <string>

#include <OrtinControls/Export.h>
#include <afxwin.h>

class PrintInfo;

/// Anything that can be printed: it counts its pages and draws them, and the job driver or the preview says when.
///
/// It is not owned by either and outlives the run. Device context and state are there for the length of the call.
class ORTIN_CONTROLS_API IPrintable {
public:
    virtual ~IPrintable();

    /// The title of the document, for the spooler and for the status window.
    virtual const std::wstring& PrintTitle() const = 0;
    /// For the host to call before its printer dialog: enables the choices and adds those of its own.
    virtual int OnPreparePrinting(PrintInfo* info) = 0;
    /// Sets the mapping of `dc` for the page in `CurrentPage()`: twice for each printed page, because a page that
    /// starts resets the context. A printable that clears `ContinuePrinting` here ends the run before this page.
    virtual void OnPrepareDC(CDC* dc, PrintInfo* info) = 0;
    /// Divides the document into pages and stores their number with `PrintInfo::Update`.
    virtual void OnBeginPrinting(CDC* dc, PrintInfo* info) = 0;
    /// Draws the page in `CurrentPage()`.
    virtual void OnPrint(CDC* dc, PrintInfo* info) = 0;
    /// Releases what `OnBeginPrinting` made.
    virtual void OnEndPrinting(CDC* dc, PrintInfo* info) = 0;
    /// Kept for the hosts' own use; the library does not call it.
    virtual void OnPrintingFinished() = 0;
    /// True ends a running job as if the user had cancelled it. It is asked after each page and by the spooler while it
    /// works, so it has to be quick and should not throw: the exception would pass through the spooler's calls.
    virtual bool IsPrintAborted() const = 0;
    /// The parent of the status window; may be null.
    virtual CWnd* AssociatedWindow() const = 0;

protected:
    IPrintable() = default;
    IPrintable(const IPrintable&) = default;
    IPrintable& operator=(const IPrintable&) = default;
};
