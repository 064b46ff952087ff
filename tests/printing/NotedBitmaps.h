#pragma once

#include <afxwin.h>

#include "support/ImportPatch.h"

/// Sees the compatible bitmaps that the framework makes for the length of a scope. One at a time.
class NotedBitmaps {
public:
    NotedBitmaps();
    ~NotedBitmaps();
    NotedBitmaps(const NotedBitmaps&) = delete;
    NotedBitmaps& operator=(const NotedBitmaps&) = delete;

    int count = 0;
    CSize largest{0, 0}; ///< the greatest width and the greatest height
    bool noMemory = false;

private:
    static HBITMAP WINAPI create(HDC dc, int width, int height);

    static NotedBitmaps* S_current;

    support::ImportPatch m_patch{::GetModuleHandleW(L"OrtinMfc.dll"), "gdi32.dll", "CreateCompatibleBitmap", create};
};
