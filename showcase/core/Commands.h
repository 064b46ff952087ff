#pragma once

#include <optional>

namespace Desk {

/// What the user may ask for by a key, a menu or a switch.
enum class Command {
    CopyRows,
    CopyColumn,
    SelectAll,
    Find,
    FindNext,
    FindPrevious,
    SwitchAutoscroll,
    SwitchLockedColumns,
    SwitchTheme,
    FitAllColumns,
    Print,
    Preview,
    ShowInfo,
};

/// Where the keys go.
enum class KeyPlace { Rows, FindBox, Elsewhere };

/// A key that goes down; `key` as Windows numbers them. Ctrl together with Alt is no Ctrl: it writes Polish letters.
struct KeyPress {
    unsigned int key = 0;
    bool control = false;
    bool shift = false;
    KeyPlace place = KeyPlace::Elsewhere;
};

std::optional<Command> commandOf(const KeyPress& press);

/// The keys of a command as menus show them; empty if it has none.
const wchar_t* keysOf(Command command);

/// Whether a search outlives the key in the rows: it does when the key asks for a command, is only held down together
/// with others or leads away. Any other key has an effect on the rows or begins a new search.
bool searchOutlives(const KeyPress& press);

} // namespace Desk
