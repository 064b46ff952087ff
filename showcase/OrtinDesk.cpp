#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <OrtinControls/GdiPlusHeaders.h>
#include <OrtinFoundation/StringTools.h>
#include <afxwin.h>
#include <shellapi.h>

#include "DeskSettings.h"
#include "DeskWindow.h"
#include "Scenes.h"
#include "StandardStreams.h"
#include "core/CommandLine.h"
#include "core/SampleData.h"

namespace Desk {

namespace {

std::vector<std::wstring> commandLineArguments() {
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&::LocalFree)> words(::CommandLineToArgvW(::GetCommandLineW(), &count),
                                                                &::LocalFree);
    return words ? std::vector<std::wstring>(words.get() + std::min(count, 1), words.get() + count)
                 : std::vector<std::wstring>();
}

/// The library leaves starting GDI+ to its host.
class GdiplusSession {
public:
    GdiplusSession() {
        const Gdiplus::GdiplusStartupInput input;
        m_started = Gdiplus::GdiplusStartup(&m_token, &input, nullptr) == Gdiplus::Ok;
    }
    ~GdiplusSession() {
        if (m_started)
            Gdiplus::GdiplusShutdown(m_token);
    }
    GdiplusSession(const GdiplusSession&) = delete;
    GdiplusSession& operator=(const GdiplusSession&) = delete;

private:
    ULONG_PTR m_token = 0;
    bool m_started = false;
};

/// What the desk starts with, once all that the user gave has been looked at. Throws a `Refusal`.
struct Start {
    DeskData data;
    DeskSettings settings;
    std::wstring settingsFile;
    std::optional<Printer> printer;
};

DeskData loadData(const DeskOptions& options) {
    try {
        DeskData data;
        data.instruments =
            options.instruments ? readInstruments(std::filesystem::path(*options.instruments)) : sampleInstruments();
        if (options.candles)
            data.candles = readCandles(std::filesystem::path(*options.candles));
        return data;
    } catch (const InputError& error) {
        throw Refusal{OrtinTools::String::Utf8ToWide(error.what()), BadInputExitCode};
    }
}

void tellRemark(const std::wstring& remark) {
    if (!remark.empty())
        printError(remark);
}

/// Where settings are kept, and what is kept there.
void takeSettings(const DeskOptions& options, Start& start) {
    std::wstring remark;
    if (options.settings) {
        start.settingsFile = *options.settings;
        const ParameterStatus status = loadSettings(start.settingsFile, start.settings, &remark);
        if (!status.IsSuccess())
            throw Refusal{status.GetMessageText(), BadInputExitCode};
        tellRemark(remark);
        return;
    }
    const std::wstring own = options.shots ? std::wstring() : defaultSettingsFile();
    if (own.empty())
        return;
    const ParameterStatus status = loadSettings(own, start.settings, &remark);
    tellRemark(remark);
    // A file of our own that has become unreadable must neither keep the user out nor be lost.
    if (status.IsSuccess())
        start.settingsFile = own;
    else
        printError(status.GetMessageText() + L"; plik zostaje, a nowe ustawienia nie będą zapamiętane");
}

Printer findPrinter(const std::wstring& name) {
    if (std::optional<Printer> printer = printerNamed(name))
        return *std::move(printer);
    std::wstring text = L"--print: ";
    const std::vector<Printer> known = systemPrinters();
    if (known.empty())
        throw Refusal{text + L"w systemie nie ma żadnej drukarki; dodaj drukarkę i spróbuj jeszcze raz",
                      NotOfferedExitCode};
    text += L"nie ma drukarki „" + name + L"”; są:";
    for (const Printer& printer : known)
        text += L' ' + printer.name;
    throw Refusal{std::move(text), NotOfferedExitCode};
}

Start prepare(const DeskOptions& options) {
    Start start;
    start.data = loadData(options);
    takeSettings(options, start);
    if (options.print)
        start.printer = findPrinter(*options.print);
    if (options.theme)
        start.settings.theme = *options.theme;
    if (options.shots) {
        // Pictures look the same wherever they are made, and leave nothing else behind.
        start.settingsFile.clear();
        std::error_code error;
        std::filesystem::create_directories(*options.shots, error);
        if (!std::filesystem::is_directory(*options.shots, error))
            throw Refusal{*options.shots + L": folderu nie można utworzyć; podaj inny", BadInputExitCode};
    }
    return start;
}

} // namespace

class DeskApp : public CWinApp {
public:
    DeskApp() : CWinApp(L"OrtinDesk") {}

    BOOL InitInstance() override;
    int ExitInstance() override;

private:
    bool openDesk(Start start, const DeskOptions& options);
    bool printTable(const Start& start);
    bool writeShots(const Start& start, const DeskOptions& options);
    void refuse(const Refusal& refusal);

    std::optional<GdiplusSession> m_gdiplus;
    std::unique_ptr<DeskWindow> m_desk;
    int m_exitCode = 0;
};

BOOL DeskApp::InitInstance() {
    CWinApp::InitInstance();
    const auto parsed = parseCommandLine(commandLineArguments());
    if (const auto* refusal = std::get_if<Refusal>(&parsed)) {
        refuse(*refusal);
        return FALSE;
    }
    const auto& options = std::get<DeskOptions>(parsed);
    if (options.help) {
        printLine(helpText());
        return FALSE;
    }
    m_gdiplus.emplace();
    try {
        Start start = prepare(options);
        if (!options.shots && !options.print)
            return openDesk(std::move(start), options);
        if (!(options.shots ? writeShots(start, options) : printTable(start)))
            m_exitCode = 1;
        return FALSE;
    } catch (const Refusal& refusal) {
        refuse(refusal);
        return FALSE;
    }
}

bool DeskApp::openDesk(Start start, const DeskOptions& options) {
    m_desk =
        std::make_unique<DeskWindow>(std::move(start.data), std::move(start.settings), std::move(start.settingsFile));
    if (!m_desk->open()) {
        refuse({L"nie można utworzyć okna", 1});
        return false;
    }
    m_pMainWnd = m_desk.get();
    m_desk->ShowWindow(m_nCmdShow);
    m_desk->UpdateWindow();
    m_desk->startTicks(options.ticksPerSecond);
    return true;
}

/// Prints from a desk that nobody sees.
bool DeskApp::printTable(const Start& start) {
    DeskWindow desk(start.data, start.settings, std::wstring());
    if (!desk.open()) {
        printError(L"nie można utworzyć okna");
        return false;
    }
    const PrintReport report = desk.printing().printAll(*start.printer);
    const bool sent = report.outcome == PrintOutcome::Sent;
    if (sent)
        printLine(report.text);
    else
        printError(report.text);
    return sent;
}

bool DeskApp::writeShots(const Start& start, const DeskOptions& options) {
    const auto makeDesk = [&start]() -> std::unique_ptr<DeskWindow> {
        auto desk = std::make_unique<DeskWindow>(start.data, start.settings, std::wstring());
        if (!desk->open()) {
            printError(L"nie można utworzyć okna");
            return nullptr;
        }
        desk->ShowWindow(SW_SHOWNOACTIVATE);
        return desk;
    };
    return Scenes(makeDesk, *options.shots, start.printer).write(options.scene);
}

void DeskApp::refuse(const Refusal& refusal) {
    printError(refusal.text);
    m_exitCode = refusal.exitCode;
}

int DeskApp::ExitInstance() {
    const int code = CWinApp::ExitInstance();
    if (m_desk && !m_desk->settingsAreKept())
        m_exitCode = 1;
    m_desk.reset();
    m_gdiplus.reset();
    return m_exitCode != 0 ? m_exitCode : code;
}

} // namespace Desk

namespace {

Desk::DeskApp theDesk;

} // namespace

int WINAPI wWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPWSTR lpCmdLine, int nShowCmd) {
    return AfxWinMain(hInstance, hPrevInstance, lpCmdLine, nShowCmd);
}
