#pragma once

#include <map>
#include <memory>
#include <mutex>

#include <OrtinControls/Export.h>
#include <OrtinControls/IPrintable.h>
#include <OrtinControls/PrintInfoEx.h>
#include <afxwin.h>

/// The driver of a print job: it takes a printable through all its pages, from the spooler's document to its end.
///
/// Each phase goes to OrtinTools::Log under the function "PrintStrategy::PrintObject", in Polish and in the
/// Windows-1250 code page. The log is the only record of what became of the job. An object has no state of its own.
class ORTIN_CONTROLS_API PrintStrategy {
public:
    PrintStrategy();
    PrintStrategy(const PrintStrategy& other);
    PrintStrategy& operator=(const PrintStrategy& other);
    virtual ~PrintStrategy();

    /// Prints on the printer of the info's dialog, and returns when the job has ended. Meanwhile the main window of the
    /// thread is disabled and a status window shows document, printer, port and page; its Cancel button ends the job,
    /// as `IPrintable::IsPrintAborted` does. A job that ends early is aborted: the spooler drops what it has.
    ///
    /// `info` and `printable` must be there. The info's dialog context keeps the ownership of the device context, and
    /// the pages asked for are walked as `PrintInfoEx` tells, backwards too. A document that cannot be started ends in
    /// a message box. An exception of the printable passes through: the job is then neither ended nor aborted,
    /// `OnEndPrinting` is not called, and the main window stays disabled.
    void PrintObject(std::shared_ptr<PrintInfoEx> info, IPrintable* printable);

private:
    class Job;
    using Prints = std::map<HDC, IPrintable*>;

    /// 0 cancels the job. The spooler asks it from inside the printing calls.
    static int CALLBACK AbortPrintProcess(HDC dc, int code);
    static void RegisterPrintable(HDC dc, IPrintable* printable);
    static void UnregisterPrintable(HDC dc);
    static IPrintable* IsRegistered(HDC dc);

    /// The running jobs by printer context, and what guards them: never held while a printable is called.
    static Prints Sm_currentPrints;
    static std::mutex PrintStrategyCurrentPrints;
};
