#pragma once

#ifdef ORTIN_MFC_EXPORTS
#define ORTIN_MFC_API __declspec(dllexport)
#else
#define ORTIN_MFC_API __declspec(dllimport)
#endif
