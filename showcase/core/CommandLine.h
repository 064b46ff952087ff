#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace Desk {

enum class DeskTheme { White, Black };

/// What the user asked for at the start.
struct DeskOptions {
    std::optional<std::wstring> instruments;
    std::optional<std::wstring> candles;
    std::optional<DeskTheme> theme;
    /// Where the scenes are written; the desk ends by itself then.
    std::optional<std::wstring> shots;
    std::optional<std::wstring> scene;
    std::optional<std::wstring> settings;
    /// The printer on which the table is printed without a question; the desk ends by itself then.
    std::optional<std::wstring> print;
    int ticksPerSecond = 0;
    bool help = false;
};

/// Why the desk does not start: one line of Polish, and the code with which the program ends.
struct Refusal {
    std::wstring text;
    int exitCode = 2;
};

/// Something is wrong with what the user gave.
inline constexpr int BadInputExitCode = 2;
/// The wish is understood, but not offered.
inline constexpr int NotOfferedExitCode = 3;

/// The names of the scenes, in the order in which they are written.
const std::vector<std::wstring>& sceneNames();
/// Whether the scene shows how the table is printed: it is written only with a printer.
bool needsPrinter(const std::wstring& scene);

/// `arguments` without the program's name. Looks at no file.
std::variant<DeskOptions, Refusal> parseCommandLine(const std::vector<std::wstring>& arguments);

/// What `--help` prints.
std::wstring helpText();

} // namespace Desk
