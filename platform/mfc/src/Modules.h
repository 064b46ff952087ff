#pragma once

#include <windows.h>

/// The framework's own module, the last one that is searched for a resource.
void rememberFrameworkModule(HMODULE module);
