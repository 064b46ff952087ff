#pragma once

#include <string>
#include <vector>

namespace Desk {

/// What a colour of the desk tells.
enum class InfoColor { Risen, Fallen, SelectedRow, FoundText, RangeReached, RangeMarker };

/// One part of what the desk tells about itself.
struct InfoPart {
    enum class Kind {
        Title,
        Heading,
        Text,
        Entry, ///< `name` is a key, a gesture or a library
        Sample ///< a field of `color`
    };

    Kind kind;
    std::wstring name;
    std::wstring text;
    InfoColor color = {};
};

/// All of it, from the top.
std::vector<InfoPart> infoParts();

} // namespace Desk
