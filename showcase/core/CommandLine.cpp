#include "CommandLine.h"

#include <algorithm>
#include <array>

namespace Desk {

namespace {

constexpr int MostTicksPerSecond = 100000;

struct Scene {
    const wchar_t* name;
    bool needsPrinter = false;
};

constexpr std::array Scenes{
    Scene{L"table-white"},
    Scene{L"table-black"},
    Scene{L"table-sorted"},
    Scene{L"table-moving-column"},
    Scene{L"table-found"},
    Scene{L"info-white"},
    Scene{L"info-black"},
    Scene{L"chart-white"},
    Scene{L"chart-black"},
    Scene{L"chart-hover"},
    Scene{L"chart-zoomed"},
    Scene{L"chart-ids"},
    Scene{L"preview-white", true},
    Scene{L"preview-black", true},
    Scene{L"printer-dialog-white", true},
    Scene{L"printer-dialog-black", true},
    Scene{L"print-status", true},
    Scene{L"print-status-black", true},
};

Refusal badInput(std::wstring text) {
    return {std::move(text), BadInputExitCode};
}

std::optional<int> wholeNumber(const std::wstring& text, int greatest) {
    if (text.empty() || text.size() > 9 ||
        !std::all_of(text.begin(), text.end(), [](wchar_t digit) { return digit >= L'0' && digit <= L'9'; }))
        return std::nullopt;
    const int value = std::stoi(text);
    return value <= greatest ? std::optional(value) : std::nullopt;
}

/// What an option with a value does with it; text is a refusal.
using Taker = std::optional<Refusal> (*)(DeskOptions& options, const std::wstring& value);

struct ValueOption {
    const wchar_t* name;
    Taker take;
};

std::optional<Refusal> takeTheme(DeskOptions& options, const std::wstring& value) {
    if (value == L"white")
        options.theme = DeskTheme::White;
    else if (value == L"black")
        options.theme = DeskTheme::Black;
    else
        return badInput(L"--theme: nieznany motyw „" + value + L"”; podaj white albo black");
    return std::nullopt;
}

std::optional<Refusal> takeScene(DeskOptions& options, const std::wstring& value) {
    const auto& names = sceneNames();
    if (std::find(names.begin(), names.end(), value) == names.end()) {
        std::wstring text = L"--scene: nieznana scena „" + value + L"”; są:";
        for (const std::wstring& name : names)
            text += L' ' + name;
        return badInput(std::move(text));
    }
    options.scene = value;
    return std::nullopt;
}

std::optional<Refusal> takeTicks(DeskOptions& options, const std::wstring& value) {
    const std::optional<int> ticks = wholeNumber(value, MostTicksPerSecond);
    if (!ticks)
        return badInput(L"--ticks: „" + value + L"” nie jest liczbą od 0 do " + std::to_wstring(MostTicksPerSecond) +
                        L"; podaj liczbę zmian kursu na sekundę");
    options.ticksPerSecond = *ticks;
    return std::nullopt;
}

constexpr std::array ValueOptions{
    ValueOption{L"--instruments",
                [](DeskOptions& options, const std::wstring& value) -> std::optional<Refusal> {
                    options.instruments = value;
                    return std::nullopt;
                }},
    ValueOption{L"--shots",
                [](DeskOptions& options, const std::wstring& value) -> std::optional<Refusal> {
                    options.shots = value;
                    return std::nullopt;
                }},
    ValueOption{L"--settings",
                [](DeskOptions& options, const std::wstring& value) -> std::optional<Refusal> {
                    options.settings = value;
                    return std::nullopt;
                }},
    ValueOption{L"--theme", takeTheme},
    ValueOption{L"--scene", takeScene},
    ValueOption{L"--ticks", takeTicks},
    ValueOption{L"--print",
                [](DeskOptions& options, const std::wstring& value) -> std::optional<Refusal> {
                    options.print = value;
                    return std::nullopt;
                }},
    ValueOption{L"--candles",
                [](DeskOptions& options, const std::wstring& value) -> std::optional<Refusal> {
                    options.candles = value;
                    return std::nullopt;
                }},
};

} // namespace

const std::vector<std::wstring>& sceneNames() {
    static const std::vector<std::wstring> names = [] {
        std::vector<std::wstring> all(Scenes.size());
        std::transform(Scenes.begin(), Scenes.end(), all.begin(), [](const Scene& scene) { return scene.name; });
        return all;
    }();
    return names;
}

bool needsPrinter(const std::wstring& scene) {
    return std::any_of(Scenes.begin(), Scenes.end(),
                       [&](const Scene& known) { return known.needsPrinter && scene == known.name; });
}

std::variant<DeskOptions, Refusal> parseCommandLine(const std::vector<std::wstring>& arguments) {
    DeskOptions options;
    for (std::size_t at = 0; at < arguments.size(); ++at) {
        const std::wstring& name = arguments[at];
        if (name == L"--help") {
            options.help = true;
            continue;
        }
        const auto option = std::find_if(ValueOptions.begin(), ValueOptions.end(),
                                         [&](const ValueOption& known) { return name == known.name; });
        if (option == ValueOptions.end())
            return badInput(L"nieznana opcja „" + name + L"”; --help wypisuje dozwolone");
        if (at + 1 == arguments.size() || arguments[at + 1].empty() || arguments[at + 1].starts_with(L"--"))
            return badInput(name + L": brak wartości; podaj ją po odstępie");
        if (std::optional<Refusal> refusal = option->take(options, arguments[++at]))
            return *std::move(refusal);
    }
    if (options.scene && !options.shots)
        return badInput(L"--scene: brak --shots; podaj folder, do którego ma trafić obraz");
    if (options.scene && needsPrinter(*options.scene) && !options.print)
        return badInput(L"--scene: do „" + *options.scene + L"” potrzeba --print; podaj nazwę drukarki");
    return options;
}

std::wstring helpText() {
    std::wstring text =
        L"OrtinDesk: tabela notowań\n\n"
        L"  --instruments PLIK.csv  instrumenty do pokazania; bez niej dane przykładowe\n"
        L"  --candles PLIK.csv      świece do wykresu; bez niej dane przykładowe\n"
        L"  --theme white|black     motyw; bez niej ostatnio używany; z --shots bez znaczenia\n"
        L"  --ticks N               zmiany kursów na sekundę, losowe, ale powtarzalne; z --shots bez znaczenia\n"
        L"  --settings PLIK         gdzie pamiętać układ kolumn; bez niej w danych użytkownika\n"
        L"  --print DRUKARKA        wydrukuj tabelę bez pytania i zakończ\n"
        L"  --shots FOLDER          zapisz obrazy scen (PNG) i zakończ; sceny druku tylko z --print\n"
        L"  --scene NAZWA           z --shots: tylko jedna scena:";
    for (const std::wstring& name : sceneNames())
        text += L"\n                            " + name;
    return text + L"\n  --help                  wypisz ten tekst\n";
}

} // namespace Desk
