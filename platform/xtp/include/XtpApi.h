#pragma once

#ifdef ORTIN_XTP_EXPORTS
#define ORTIN_XTP_API __declspec(dllexport)
#else
#define ORTIN_XTP_API __declspec(dllimport)
#endif
