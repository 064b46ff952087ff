#pragma once

/// Marks what the library gives to its hosts.
#if defined(ORTIN_CONTROLS_EXPORTS)
#define ORTIN_CONTROLS_API __declspec(dllexport)
#else
#define ORTIN_CONTROLS_API __declspec(dllimport)
#endif
