#pragma once

#include <memory>
#include <string>

#include <OrtinControls/OrtinControls.h>
#include <gtest/gtest.h>

#include "FakeSpooler.h"
#include "RecordingPrintable.h"
#include "support/TopLevelWindow.h"

/// A printer that is a memory device, as a host's dialog would give it.
class MemoryPrinter {
public:
    MemoryPrinter();

    PrintDialogContext dialog;
    std::shared_ptr<PrintInfoEx> info = std::make_shared<PrintInfoEx>(&dialog);
    HDC dc() const { return dialog.PrinterDC(); }
};

/// The lines of the print log for the length of a scope, each with a line feed; bytes as they were written.
class PrintLogLines {
public:
    PrintLogLines();
    ~PrintLogLines();
    PrintLogLines(const PrintLogLines&) = delete;
    PrintLogLines& operator=(const PrintLogLines&) = delete;

    std::string take() { return std::exchange(m_lines, {}); }
    /// Whether all lines so far named the one function and a line of its source.
    bool areWellFormed() const { return m_areWellFormed; }

private:
    std::string m_lines;
    bool m_areWellFormed = true;
};

/// A main window, a printer, a document of three pages and the driver.
class PrintingFixture : public testing::Test {
protected:
    PrintingFixture();
    ~PrintingFixture() override;

    void print() { PrintStrategy().PrintObject(printer.info, &printable); }
    void askForPages(int from, int to);
    bool mainWindowIsEnabled() const { return ::IsWindowEnabled(mainWindow.m_hWnd); }

    support::ScopedTopLevelWindow mainWindow{CSize(300, 200)};
    MemoryPrinter printer;
    RecordingPrintable printable;
    PrintLogLines log;
    PrintStrategy strategy;
};

/// The same with a spooler that does what the test wants; the calls to host and spooler come in one order.
class SpooledPrintingFixture : public PrintingFixture {
protected:
    SpooledPrintingFixture();

    /// The calls and the way things were left: "... | main enabled, entry gone".
    std::string takeStory();
    bool isRegistered();

    FakeSpooler spooler;
    std::string calls;
};

/// The dialog that the job shows, and its parts; null without a job.
HWND statusWindow();
std::wstring statusText(int item);

/// The log of a job with one line more or less, in the code page of the log.
namespace PrintLogText {

inline constexpr const char* kBeginning = "Pocz\xB9tkowa konfiguracja drukowania\n"
                                          "Konfiguracja kontekstu drukowania\n"
                                          "Dezaktywacja okna g\xB3\xF3wnego\n"
                                          "Inicjalizacja okna stanu drukowania\n"
                                          "Rozpocz\xEA"
                                          "cie drukowania\n";
inline constexpr const char* kNothing = "Nie ma niczego do drukowania (m_pagesCount == 0)\n";
inline constexpr const char* kCall = "Wywo\xB3"
                                     "anie OnPrint okna\n";
inline constexpr const char* kEarlyEnd = "Koniec drukowania\n";
inline constexpr const char* kCancelled = "Zadanie drukowania zosta\xB3o przerwane\n";
inline constexpr const char* kGoodEnd = "Wszystkie dane zosta\xB3y przes\xB3"
                                        "ane do drukarki, zamykamy dokument.\n";

std::string page(int number);
/// The page and its drawing.
std::string drawn(int number);
std::string failedEnd(int error);

} // namespace PrintLogText

/// What host and spooler see of a job of the document "Notowania".
namespace PrintStory {

inline const std::string kStart = "begin SetAbortProc StartDoc(Notowania)";

/// A page that goes well.
std::string printed(int page);

} // namespace PrintStory
