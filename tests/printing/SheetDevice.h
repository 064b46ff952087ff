#pragma once

#include <map>

#include <afxwin.h>

#include "support/ImportPatch.h"

/// A sheet of paper as a device of some resolution has it.
struct Sheet {
    int dpi;
    int width;
    int height;
};

inline constexpr Sheet kScreenSheet{96, 794, 1123}; ///< A4
inline constexpr Sheet kSheets[] = {kScreenSheet, {300, 2480, 3508}, {600, 4960, 7016}};

/// A memory device that says it is a sheet; the mapping itself is the system's own. One at a time.
class SheetDevice {
public:
    explicit SheetDevice(const Sheet& sheet) {
        S_caps = {{HORZRES, sheet.width}, {VERTRES, sheet.height}, {LOGPIXELSX, sheet.dpi}, {LOGPIXELSY, sheet.dpi}};
        m_dc.CreateCompatibleDC(nullptr);
    }

    void setSize(int width, int height) {
        S_caps[HORZRES] = width;
        S_caps[VERTRES] = height;
    }
    void setResolution(int dpiX, int dpiY) {
        S_caps[LOGPIXELSX] = dpiX;
        S_caps[LOGPIXELSY] = dpiY;
    }

    CDC* dc() { return &m_dc; }

private:
    static int WINAPI capsOfTheSheet(HDC, int index) { return S_caps.at(index); }
    inline static std::map<int, int> S_caps;

    support::ImportPatch m_caps{::GetModuleHandleW(L"OrtinControls.dll"), "gdi32.dll", "GetDeviceCaps", capsOfTheSheet};
    CDC m_dc;
};
