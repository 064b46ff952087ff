#pragma once

#include "afx.h"

#include <string_view>

/// The framework's own module, the last one that is searched for a resource.
void rememberFrameworkModule(HMODULE module);

/// The text resource of the first module of the search that has it; empty if none has. Modules may share a block of
/// sixteen texts and each hold other ones of it.
std::wstring_view findText(UINT id);
