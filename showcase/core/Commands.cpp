#include "Commands.h"

#include <algorithm>
#include <array>

namespace Desk {

namespace {

constexpr unsigned int TabKey = 0x09;
constexpr unsigned int ReturnKey = 0x0D;
constexpr unsigned int F1Key = 0x70;
constexpr unsigned int F3Key = 0x72;
constexpr unsigned int F6Key = 0x75;
constexpr unsigned int F7Key = 0x76;
constexpr unsigned int F8Key = 0x77;

/// Shift, Ctrl, Alt, Caps Lock, both Windows keys, the menu key, Num Lock and Scroll Lock.
constexpr std::array<unsigned int, 9> SilentKeys{0x10, 0x11, 0x12, 0x14, 0x5B, 0x5C, 0x5D, 0x90, 0x91};

struct Shortcut {
    Command command;
    const wchar_t* text;
    unsigned int key;
    bool control = false;
    bool shift = false;
    /// Anywhere, if there is none.
    std::optional<KeyPlace> place = {};
};

/// The first one of a command is the one that is shown.
constexpr std::array Shortcuts{
    Shortcut{Command::CopyRows, L"Ctrl+C", 'C', true, false, KeyPlace::Rows},
    Shortcut{Command::CopyColumn, L"Ctrl+Shift+C", 'C', true, true, KeyPlace::Rows},
    Shortcut{Command::SelectAll, L"Ctrl+A", 'A', true, false, KeyPlace::Rows},
    Shortcut{Command::Find, L"Ctrl+F", 'F', true},
    Shortcut{Command::Find, L"Ctrl+A", 'A', true, false, KeyPlace::FindBox},
    Shortcut{Command::FindNext, L"F3", F3Key},
    Shortcut{Command::FindNext, L"Enter", ReturnKey, false, false, KeyPlace::FindBox},
    Shortcut{Command::FindPrevious, L"Shift+F3", F3Key, false, true},
    Shortcut{Command::FindPrevious, L"Shift+Enter", ReturnKey, false, true, KeyPlace::FindBox},
    Shortcut{Command::Print, L"Ctrl+P", 'P', true},
    Shortcut{Command::Preview, L"Ctrl+Shift+P", 'P', true, true},
    Shortcut{Command::SwitchAutoscroll, L"F6", F6Key},
    Shortcut{Command::SwitchLockedColumns, L"F7", F7Key},
    Shortcut{Command::SwitchTheme, L"F8", F8Key},
    Shortcut{Command::ShowInfo, L"F1", F1Key},
};

bool asksFor(const KeyPress& press, const Shortcut& shortcut) {
    return press.key == shortcut.key && press.control == shortcut.control && press.shift == shortcut.shift &&
           (!shortcut.place || press.place == *shortcut.place);
}

} // namespace

std::optional<Command> commandOf(const KeyPress& press) {
    const auto shortcut =
        std::find_if(Shortcuts.begin(), Shortcuts.end(), [&](const Shortcut& known) { return asksFor(press, known); });
    return shortcut != Shortcuts.end() ? std::optional(shortcut->command) : std::nullopt;
}

const wchar_t* keysOf(Command command) {
    const auto shortcut = std::find_if(Shortcuts.begin(), Shortcuts.end(),
                                       [command](const Shortcut& known) { return known.command == command; });
    return shortcut != Shortcuts.end() ? shortcut->text : L"";
}

bool searchOutlives(const KeyPress& press) {
    return press.key == TabKey || commandOf(press) ||
           std::find(SilentKeys.begin(), SilentKeys.end(), press.key) != SilentKeys.end();
}

} // namespace Desk
