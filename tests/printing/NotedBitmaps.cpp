#include "NotedBitmaps.h"

#include <algorithm>

NotedBitmaps* NotedBitmaps::S_current = nullptr;

NotedBitmaps::NotedBitmaps() {
    S_current = this;
}

NotedBitmaps::~NotedBitmaps() {
    S_current = nullptr;
}

HBITMAP WINAPI NotedBitmaps::create(HDC dc, int width, int height) {
    NotedBitmaps& noted = *S_current;
    ++noted.count;
    noted.largest.cx = std::max<LONG>(noted.largest.cx, width);
    noted.largest.cy = std::max<LONG>(noted.largest.cy, height);
    return noted.noMemory ? nullptr : noted.m_patch.original<HBITMAP WINAPI(HDC, int, int)>()(dc, width, height);
}
