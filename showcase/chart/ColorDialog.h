#pragma once

#include <optional>

#include <afxwin.h>

namespace Desk {

/// Asks for a colour by the system's dialog, modal over `owner`, which begins with `first`; nothing if the user leaves
/// it without one. Colours that the user mixes are offered again until the program ends.
std::optional<COLORREF> askForColor(CWnd& owner, COLORREF first);

} // namespace Desk
