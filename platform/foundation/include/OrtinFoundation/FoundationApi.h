#pragma once

#ifdef ORTIN_FOUNDATION_EXPORTS
#define ORTIN_FOUNDATION_API __declspec(dllexport)
#else
#define ORTIN_FOUNDATION_API __declspec(dllimport)
#endif
