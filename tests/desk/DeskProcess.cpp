#include "DeskProcess.h"

#include <OrtinFoundation/Clipboard.h>
#include <OrtinFoundation/Settings.h>
#include <OrtinFoundation/StringTools.h>

#include <algorithm>
#include <chrono>
#include <sstream>
#include <thread>

#include "core/ColumnLayout.h"
#include "support/Pump.h"
#include "support/RealInput.h"

namespace {

constexpr int StripId = 1;
constexpr int TableId = 2;
constexpr int ScrollBarId = 3;
constexpr int StatusId = 4;
constexpr int FindBoxId = 1;
constexpr int BodyId = 11112;
constexpr int HeaderId = 11113;

struct KnownColumn {
    const char* key;
    int width;
};

constexpr KnownColumn KnownColumns[] = {
    {"symbol", 70},
    {"name", 180},
    {"sector", 150},
    {"price", 90},
    {"price-earnings", 80},
    {"dividend-yield", 90},
    {"earnings-per-share", 100},
    {"range-52-weeks", 110},
    {"market-cap", 110},
};

/// S00 to S59; each fifth one has no price-earnings ratio, the others go down from 60 by row.
std::string knownInstruments() {
    std::ostringstream csv;
    csv << "Symbol,Name,Sector,Price,PriceEarnings,DividendYield,EarningsPerShare,Low52Weeks,High52Weeks,MarketCap\n";
    for (int row = 0; row < 60; ++row) {
        const std::string number = (row < 10 ? "0" : "") + std::to_string(row);
        csv << 'S' << number << (row % 7 == 3 ? ",Żubr " : ",Firma ") << number << ",Bardzo długa nazwa branży numer "
            << number << ',' << 100 + row << ".5," << (row % 5 == 0 ? "" : std::to_string(60 - row))
            << ",0.02,3.5,50,200," << 1000000000LL * (row + 1) << '\n';
    }
    return csv.str();
}

std::wstring quoted(const std::wstring& argument) {
    return L" \"" + argument + L"\"";
}

std::wstring deskCommand(const std::vector<std::wstring>& arguments) {
    wchar_t path[MAX_PATH] = L"";
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::filesystem::path program = std::filesystem::path(path).parent_path() / L"OrtinDesk.exe";
    std::wstring command = L"\"" + program.wstring() + L"\"";
    for (const std::wstring& argument : arguments)
        command += quoted(argument);
    return command;
}

/// Collects what a child writes into the pipe until it closes it.
class Collector {
public:
    Collector() {
        SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
        ::CreatePipe(&m_read, &m_write, &inherited, 0);
        ::SetHandleInformation(m_read, HANDLE_FLAG_INHERIT, 0);
    }
    ~Collector() {
        ::CloseHandle(m_read);
        closeWriting();
    }
    Collector(const Collector&) = delete;
    Collector& operator=(const Collector&) = delete;

    HANDLE writing() const { return m_write; }
    void closeWriting() {
        if (m_write)
            ::CloseHandle(m_write);
        m_write = nullptr;
    }
    std::string all() {
        std::string text;
        char chunk[4096];
        DWORD count = 0;
        while (::ReadFile(m_read, chunk, sizeof(chunk), &count, nullptr) && count > 0)
            text.append(chunk, count);
        return text;
    }

private:
    HANDLE m_read = nullptr;
    HANDLE m_write = nullptr;
};

HANDLE createProcess(std::wstring command, HANDLE output, HANDLE errors) {
    STARTUPINFOW start{};
    start.cb = sizeof(start);
    if (output) {
        start.dwFlags = STARTF_USESTDHANDLES;
        start.hStdOutput = output;
        start.hStdError = errors;
    }
    PROCESS_INFORMATION process{};
    if (!::CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process))
        throw std::runtime_error("the desk does not start");
    ::CloseHandle(process.hThread);
    return process.hProcess;
}

HWND mainWindowOf(DWORD process) {
    struct Search {
        DWORD process;
        HWND found;
    } search{process, nullptr};
    ::EnumWindows(
        [](HWND window, LPARAM parameter) -> BOOL {
            auto& wanted = *reinterpret_cast<Search*>(parameter);
            DWORD owner = 0;
            ::GetWindowThreadProcessId(window, &owner);
            if (owner == wanted.process && ::IsWindowVisible(window) && ::GetDlgItem(window, TableId))
                wanted.found = window;
            return wanted.found == nullptr;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

} // namespace

bool eventually(const std::function<bool()>& holds) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!holds()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        support::pumpFor(std::chrono::milliseconds(30));
    }
    return true;
}

bool dragUntil(POINT from, POINT to, const std::function<bool()>& hasFollowed) {
    support::moveMouse(from);
    support::pressButton();
    const bool followed = eventually([&] {
        support::moveMouse(to);
        return hasFollowed();
    });
    support::releaseButton();
    return followed;
}

DeskRun runDesk(const std::vector<std::wstring>& arguments, const std::function<void()>& whileOpen) {
    Collector output;
    Collector errors;
    const HANDLE process = createProcess(deskCommand(arguments), output.writing(), errors.writing());
    output.closeWriting();
    errors.closeWriting();
    DeskRun run;
    std::thread readingOutput([&] { run.output = output.all(); });
    std::thread readingErrors([&] { run.errors = errors.all(); });
    if (whileOpen) {
        HWND window = nullptr;
        EXPECT_TRUE(eventually([&] { return (window = mainWindowOf(::GetProcessId(process))) != nullptr; }))
            << "no window";
        whileOpen();
        ::PostMessageW(window, WM_CLOSE, 0, 0);
    }
    readingOutput.join();
    readingErrors.join();
    DWORD code = 0;
    if (::WaitForSingleObject(process, 60000) != WAIT_OBJECT_0)
        ::TerminateProcess(process, 99);
    ::GetExitCodeProcess(process, &code);
    ::CloseHandle(process);
    run.exitCode = static_cast<int>(code);
    return run;
}

// Life of the desk

void DeskOnScreen::start(const std::vector<std::wstring>& more) {
    if (!std::filesystem::exists(m_settings)) {
        Settings settings;
        for (std::size_t position = 0; position < std::size(KnownColumns); ++position)
            settings["columns"][std::to_string(position)] = Desk::arrangedColumnText(
                {KnownColumns[position].key, static_cast<double>(KnownColumns[position].width), true});
        settings["locked-columns"].SetBool(true);
        ASSERT_TRUE(settings.SaveToFile(m_settings.wstring()).IsSuccess());
    }
    std::vector<std::wstring> arguments{L"--settings", m_settings.wstring(), L"--instruments",
                                        m_folder.write(L"known.csv", knownInstruments()).wstring()};
    arguments.insert(arguments.end(), more.begin(), more.end());
    m_process = createProcess(deskCommand(arguments), nullptr, nullptr);
    const DWORD id = ::GetProcessId(m_process);
    ASSERT_TRUE(eventually([&] { return (m_desk = mainWindowOf(id)) != nullptr; })) << "no window";

    RECT frame{0, 0, scaled(1000), scaled(600)};
    ::AdjustWindowRectEx(&frame, static_cast<DWORD>(::GetWindowLongW(m_desk, GWL_STYLE)), FALSE,
                         static_cast<DWORD>(::GetWindowLongW(m_desk, GWL_EXSTYLE)));
    ::SetWindowPos(m_desk, nullptr, 20, 20, frame.right - frame.left, frame.bottom - frame.top, SWP_NOZORDER);
    // The first click makes the window active; it lies on the status line, where it does nothing else.
    support::click(onScreen(statusLine(), scaled(300), 4));
    ASSERT_TRUE(eventually([&] { return ::GetForegroundWindow() == m_desk; }))
        << "the window does not come to the front";
    ASSERT_TRUE(eventually([&] { return !pixelsOf(body()).onlyColour(pixelsOf(body()).bounds()); }))
        << "nothing painted";
    if (std::find(more.begin(), more.end(), L"--ticks") == more.end())
        settle();
}

void DeskOnScreen::catchUp() const {
    // With each answer the desk has come round to its queue once more, and between two it takes what waits there: on a
    // busy machine no time says as much.
    constexpr int Rounds = 20;
    constexpr UINT Patience = 10000;
    for (int round = 0; round < Rounds; ++round) {
        ASSERT_TRUE(::SendMessageTimeoutW(m_desk, WM_NULL, 0, 0, SMTO_NORMAL, Patience, nullptr))
            << "the desk does not answer";
    }
}

void DeskOnScreen::settle() const {
    // What is still to come of a repaint comes within this time.
    constexpr auto Stillness = std::chrono::milliseconds(120);
    catchUp();
    support::Pixels before = pixelsOf(m_desk);
    EXPECT_TRUE(eventually([&] {
        support::pumpFor(Stillness);
        catchUp();
        support::Pixels now = pixelsOf(m_desk);
        const bool still = now == before;
        before = std::move(now);
        return still;
    })) << "the desk does not come to rest";
}

void DeskOnScreen::drag(POINT from, POINT to) const {
    support::dragTo(from, to);
    // A move that comes together with the release is lost.
    settle();
    support::releaseButton();
    settle();
}

void DeskOnScreen::clickWith(WORD key, POINT point) const {
    // The display tells after a move of the pointer which keys it knows to be down, and these are none of ours: so the
    // pointer is there first.
    support::moveMouse(point);
    settle();
    const support::HeldKey held(key);
    support::pressButton();
    support::releaseButton();
    settle();
}

void DeskOnScreen::clickAgain(POINT point) const {
    support::pumpFor(std::chrono::milliseconds(::GetDoubleClickTime() + 50));
    support::click(point);
}

void DeskOnScreen::close() {
    // A posted message goes before the input that still waits.
    settle();
    ::PostMessageW(m_desk, WM_CLOSE, 0, 0);
    EXPECT_EQ(::WaitForSingleObject(m_process, 10000), WAIT_OBJECT_0) << "the desk does not end";
    DWORD code = 1;
    ::GetExitCodeProcess(m_process, &code);
    EXPECT_EQ(code, 0u);
    ::CloseHandle(m_process);
    m_process = nullptr;
    m_desk = nullptr;
}

void DeskOnScreen::TearDown() {
    if (!m_process)
        return;
    ::TerminateProcess(m_process, 1);
    ::WaitForSingleObject(m_process, 10000);
    ::CloseHandle(m_process);
}

// Windows

HWND DeskOnScreen::strip() const {
    return ::GetDlgItem(m_desk, StripId);
}

HWND DeskOnScreen::findBox() const {
    return ::GetDlgItem(strip(), FindBoxId);
}

HWND DeskOnScreen::table() const {
    return ::GetDlgItem(m_desk, TableId);
}

HWND DeskOnScreen::header() const {
    return ::GetDlgItem(table(), HeaderId);
}

HWND DeskOnScreen::body() const {
    return ::GetDlgItem(table(), BodyId);
}

HWND DeskOnScreen::scrollBar() const {
    return ::GetDlgItem(m_desk, ScrollBarId);
}

HWND DeskOnScreen::statusLine() const {
    return ::GetDlgItem(m_desk, StatusId);
}

POINT DeskOnScreen::onScreen(HWND window, int x, int y) const {
    POINT point{x, y};
    ::ClientToScreen(window, &point);
    return point;
}

support::Pixels DeskOnScreen::pixelsOf(HWND window) const {
    RECT area{};
    ::GetClientRect(window, &area);
    ::MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&area), 2);
    return support::Pixels::ofScreen(area);
}

// Places

int DeskOnScreen::scaled(int length) {
    const HDC screen = ::GetDC(nullptr);
    const int dpi = ::GetDeviceCaps(screen, LOGPIXELSX);
    ::ReleaseDC(nullptr, screen);
    return ::MulDiv(length, dpi, 96);
}

int DeskOnScreen::columnRight(std::size_t position) const {
    int width = 0;
    for (std::size_t column = 0; column <= position; ++column)
        width += KnownColumns[column].width;
    return scaled(width);
}

int DeskOnScreen::columnMiddle(std::size_t position) const {
    return columnRight(position) - scaled(KnownColumns[position].width) / 2;
}

int DeskOnScreen::rowHeight() const {
    // Every other row has another background: the second one begins where the colour at the edge changes for the second
    // time, for the first row is selected.
    const support::Pixels view = pixelsOf(body());
    int y = 0;
    int begins[2] = {0, 0};
    for (int& begin : begins) {
        const COLORREF here = view.at(1, y + 3);
        while (y + 3 < view.height() && view.at(1, y + 3) == here)
            ++y;
        begin = y + 3;
    }
    return begins[1] - begins[0];
}

POINT DeskOnScreen::cell(int rowInView, std::size_t position) const {
    const int height = rowHeight();
    return onScreen(body(), columnMiddle(position), rowInView * height + height / 2);
}

POINT DeskOnScreen::title(std::size_t position) const {
    return onScreen(header(), columnMiddle(position), scaled(10));
}

// What is left

std::wstring DeskOnScreen::copied() {
    const std::wstring nothing = L"nothing copied";
    OrtinTools::Clipboard::SetClipboardString(nullptr, nothing);
    settle();
    support::chord({VK_CONTROL, 'C'});
    std::optional<std::wstring> text;
    eventually([&] {
        text = OrtinTools::Clipboard::GetClipboardString(nullptr);
        return text && *text != nothing;
    });
    return text.value_or(L"");
}

std::string DeskOnScreen::copiedSymbols() {
    std::istringstream text(OrtinTools::String::WideToUtf8(copied()));
    std::string symbols;
    for (std::string row; std::getline(text, row);) {
        if (!symbols.empty())
            symbols += ' ';
        symbols += row.substr(0, row.find_first_of("\t\r"));
    }
    return symbols;
}

std::wstring DeskOnScreen::textOf(HWND window) const {
    wchar_t text[300] = L"";
    ::SendMessageW(window, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text));
    return text;
}

std::vector<std::string> DeskOnScreen::keptColumns() const {
    Settings loaded;
    EXPECT_TRUE(loaded.LoadFromFile(m_settings.wstring()).IsSuccess());
    const Settings& columns = loaded["columns"];
    std::vector<std::string> texts;
    for (const std::string& name : columns.GetChildNames())
        texts.push_back(static_cast<const std::string&>(columns[name]));
    return texts;
}

std::vector<std::string> DeskOnScreen::keptKeys() const {
    std::vector<std::string> keys;
    for (const std::string& text : keptColumns())
        keys.push_back(Desk::arrangedColumnFromText(text).key);
    return keys;
}

double DeskOnScreen::keptWidth(const std::string& key) const {
    for (const std::string& text : keptColumns())
        if (const Desk::ArrangedColumn column = Desk::arrangedColumnFromText(text); column.key == key)
            return column.width;
    return 0.0;
}

double DeskOnScreen::keptSum() const {
    double sum = 0.0;
    for (const std::string& text : keptColumns())
        sum += Desk::arrangedColumnFromText(text).width;
    return sum;
}
