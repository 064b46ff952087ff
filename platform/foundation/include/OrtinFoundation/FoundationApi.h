#pragma once

#if !defined(_WIN32)
#define ORTIN_FOUNDATION_API // what needs no windows is also built for the build machine
#elif defined(ORTIN_FOUNDATION_EXPORTS)
#define ORTIN_FOUNDATION_API __declspec(dllexport)
#else
#define ORTIN_FOUNDATION_API __declspec(dllimport)
#endif
