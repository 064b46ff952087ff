// The lines of the log and the calls to host, spooler and windows in one order.
#include "PrintingFixture.h"

#include <set>
#include <vector>

#include <OrtinFoundation/Log.h>
#include <OrtinFoundation/StringTools.h>

#include <winspool.h>

using OrtinTools::Log;

namespace {

/// Writes down what the library does to its windows: "enable:0 item:201 show update destroy".
class WindowCalls {
public:
    explicit WindowCalls(std::string& calls) { S_calls = &calls; }

private:
    static BOOL WINAPI enable(HWND window, BOOL isEnabled) {
        *S_calls += " enable:" + std::to_string(isEnabled);
        return ::EnableWindow(window, isEnabled);
    }
    static BOOL WINAPI setText(HWND dialog, int item, const wchar_t* text) {
        *S_calls += " item:" + std::to_string(item);
        return ::SetDlgItemTextW(dialog, item, text);
    }
    static BOOL WINAPI show(HWND window, int how) {
        *S_calls += how == SW_SHOW ? " show" : " show in another way";
        return ::ShowWindow(window, how);
    }
    static BOOL WINAPI update(HWND window) {
        *S_calls += " update";
        return ::UpdateWindow(window);
    }
    static BOOL WINAPI destroy(HWND window) {
        *S_calls += " destroy";
        return ::DestroyWindow(window);
    }

    inline static std::string* S_calls = nullptr;

    HMODULE m_framework = ::GetModuleHandleW(L"OrtinMfc.dll");
    support::ImportPatch m_enable{::GetModuleHandleW(L"OrtinControls.dll"), "user32.dll", "EnableWindow", enable};
    support::ImportPatch m_setText{m_framework, "user32.dll", "SetDlgItemTextW", setText};
    support::ImportPatch m_show{m_framework, "user32.dll", "ShowWindow", show};
    support::ImportPatch m_update{m_framework, "user32.dll", "UpdateWindow", update};
    support::ImportPatch m_destroy{m_framework, "user32.dll", "DestroyWindow", destroy};
};

class PrintJobSteps : public SpooledPrintingFixture {
protected:
    PrintJobSteps() {
        printable.pages = 1;
        printable.onTitle = [this] { calls += " title"; };
        printable.onWindow = [this] { calls += " window"; };
        printable.onAborted = [this] { calls += " aborted"; };
        Log::Instance().SetSink([this](std::string_view, int, std::string_view text) {
            calls += " [";
            calls += text;
            calls += ']';
        });
    }

    std::string stepsOfAJob() {
        calls.clear();
        const WindowCalls windowCalls(calls);
        print();
        return calls;
    }
};

std::string said(std::wstring_view text) {
    return " [" + OrtinTools::String::WideToAnsi(text) + ']';
}

const std::string kStart =
    said(L"Początkowa konfiguracja drukowania") + " title" + said(L"Konfiguracja kontekstu drukowania") +
    " begin SetAbortProc" + said(L"Dezaktywacja okna głównego") + " enable:0" +
    said(L"Inicjalizacja okna stanu drukowania") + " window item:201 item:202 item:203 show update" +
    said(L"Rozpoczęcie drukowania") + " StartDoc(Notowania)";
const std::string kPage = said(L"Drukowanie strony 1") + " prepare:1";
const std::string kBegunPage = kPage + " item:204 StartPage";
const std::string kDrawnPage = kBegunPage + " prepare:1" + said(L"Wywołanie OnPrint okna") + " print:1 EndPage";
const std::string kEnd = " enable:1 end destroy";
const std::string kGoodEnd =
    said(L"Wszystkie dane zostały przesłane do drukarki, zamykamy dokument.") + " EndDoc" + kEnd;
const std::string kFailedEnd =
    said(L"Nastąpił błąd drukowania i zostało ono przerwane") + said(L"GetLastError() == 5") + " AbortDoc" + kEnd;

} // namespace

TEST_F(PrintJobSteps, AreLoggedBeforeTheyAreTaken) {
    EXPECT_EQ(kStart + kDrawnPage + " aborted" + kGoodEnd, stepsOfAJob());
}

TEST_F(PrintJobSteps, OfAnEmptyDocumentCloseIt) {
    printable.pages = 0;
    EXPECT_EQ(kStart + said(L"Nie ma niczego do drukowania (m_pagesCount == 0)") + kGoodEnd, stepsOfAJob());
}

TEST_F(PrintJobSteps, OfAPrintableThatEndsCloseTheDocument) {
    printable.onPrepare = [](CDC&, PrintInfo& info) { info.ContinuePrinting(false); };
    EXPECT_EQ(kStart + kPage + said(L"Koniec drukowania") + kGoodEnd, stepsOfAJob());
}

TEST_F(PrintJobSteps, OfADocumentThatCannotBeStartedEndWithTheMessage) {
    spooler.startDocResult = -1;
    EXPECT_EQ(kStart + kEnd + " MessageBox", stepsOfAJob());
}

TEST_F(PrintJobSteps, OfAPageThatCannotStartAbortTheDocument) {
    spooler.lastError = 5;
    spooler.onStartPage = [](int) { return -1; };
    EXPECT_EQ(kStart + kBegunPage + said(L"dcPrint.StartPage() < 0") + kFailedEnd, stepsOfAJob());
}

TEST_F(PrintJobSteps, OfAPageThatCannotEndAskTheSpoolerFirst) {
    spooler.lastError = 5;
    spooler.printerOpens = false;
    spooler.onEndPage = [](int) { return -1; };
    EXPECT_EQ(kStart + kDrawnPage + " OpenPrinter(Drukarka główna)" +
                  said(L"Nie można użyć wybranej drukarki: Drukarka główna") + kFailedEnd,
              stepsOfAJob());
}

TEST_F(PrintJobSteps, OfAForgivenPageAskThePrintableLikeAfterAnyOther) {
    spooler.lastError = 5;
    spooler.jobStatus = JOB_STATUS_RESTART;
    spooler.onEndPage = [](int) { return -1; };
    EXPECT_EQ(kStart + kDrawnPage + " OpenPrinter(Drukarka główna) GetJob(77,1) GetJob(77,1) aborted" + kGoodEnd,
              stepsOfAJob());
}

TEST_F(PrintJobSteps, OfACancelledJobAbortTheDocument) {
    spooler.lastError = 5;
    printable.isAborted = true;
    EXPECT_EQ(kStart + kDrawnPage + " aborted" + said(L"Zadanie drukowania zostało przerwane") + kFailedEnd,
              stepsOfAJob());
}

TEST_F(PrintJobSteps, AreLoggedWithTheLineOfTheirCall) {
    struct Entry {
        std::string text;
        int line;
    };
    std::vector<Entry> entries;
    Log::Instance().SetSink([&](std::string_view, int line, std::string_view text) {
        entries.push_back({std::string(text), line});
    });
    printable.pages = 2;
    spooler.onStartPage = [](int page) { return page == 2 ? -1 : 1; };
    print();
    // The beginning, a page and its drawing, a page and why it failed, the failed end.
    ASSERT_EQ(5U + 2 + 2 + 2, entries.size());
    EXPECT_EQ("Drukowanie strony 1", entries[5].text);
    EXPECT_EQ("Drukowanie strony 2", entries[7].text);
    EXPECT_EQ(entries[5].line, entries[7].line);
    std::set<int> lines;
    for (const Entry& entry : entries) {
        EXPECT_GT(entry.line, 0);
        lines.insert(entry.line);
    }
    EXPECT_EQ(entries.size() - 1, lines.size());
}

TEST_F(PrintJobSteps, TellTheErrorOfTheCallThatFailedWhateverTheLogDoes) {
    spooler.lastError.reset();
    std::string lines;
    Log::Instance().SetSink([&](std::string_view, int, std::string_view text) {
        lines += std::string(text) + '\n';
        ::SetLastError(ERROR_DISK_FULL);
    });
    spooler.onStartPage = [](int) {
        ::SetLastError(ERROR_PRINTER_NOT_FOUND);
        return -1;
    };
    print();
    EXPECT_TRUE(lines.ends_with(PrintLogText::failedEnd(ERROR_PRINTER_NOT_FOUND))) << lines;
    lines.clear();
    spooler.onStartPage = [](int) { return 1; };
    spooler.printerOpens = false;
    spooler.onEndPage = [](int) {
        ::SetLastError(ERROR_INVALID_PRINTER_NAME);
        return -1;
    };
    print();
    EXPECT_TRUE(lines.ends_with(PrintLogText::failedEnd(ERROR_INVALID_PRINTER_NAME))) << lines;
}

TEST_F(PrintJobSteps, SeeWhatTheWaitingMessagesBringBeforeThePrintableIsAsked) {
    mainWindow.onMessage = [this](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
        printable.isAborted = printable.isAborted || message == WM_APP;
        return std::nullopt;
    };
    printable.pages = 2;
    printable.onPrint = [this](CDC&, PrintInfo&) { mainWindow.PostMessage(WM_APP); };
    spooler.lastError = 5;
    EXPECT_EQ(kStart + kDrawnPage + " aborted" + said(L"Zadanie drukowania zostało przerwane") + kFailedEnd,
              stepsOfAJob());
    printable.isAborted = false;
    int answer = -1;
    printable.onPrint = [&](CDC&, PrintInfo&) {
        mainWindow.PostMessage(WM_APP);
        answer = spooler.abortProcedure(printer.dc(), 0);
    };
    print();
    EXPECT_EQ(0, answer) << "to the spooler";
}

TEST_F(PrintJobSteps, MayBeAnotherJobsWhileThePrintableIsAsked) {
    // A question that is asked under the lock would wait for itself here.
    MemoryPrinter secondPrinter;
    RecordingPrintable inner;
    std::string innerStory;
    printable.onAborted = [&] { PrintStrategy().PrintObject(secondPrinter.info, &inner); };
    std::vector<int> answers;
    printable.onPrint = [&](CDC&, PrintInfo&) { answers.push_back(spooler.abortProcedure(printer.dc(), 0)); };
    print();
    EXPECT_EQ(std::vector<int>{1}, answers);
    EXPECT_EQ("begin prepare:1 prepare:1 print:1 end begin prepare:1 prepare:1 print:1 end", inner.takeCalls())
        << "asked by the spooler and by the job";
    EXPECT_FALSE(isRegistered());
}
