#include "support/Resources.h"
#include "support/TopLevelWindow.h"

#include <memory>
#include <vector>

#include <gtest/gtest.h>

namespace support {
namespace {

TEST(Resources, TwentyPensAreTwentyHandles) {
    const std::size_t before = gdiHandleCount();
    std::vector<HPEN> pens;
    for (int width = 1; width <= 20; ++width) {
        pens.push_back(::CreatePen(PS_SOLID, width, RGB(width, 0, 0)));
    }
    EXPECT_EQ(before + 20, gdiHandleCount());
    for (const HPEN pen : pens) {
        ::DeleteObject(pen);
    }
    EXPECT_EQ(before, gdiHandleCount());
}

TEST(Resources, EachKindOfHandleCounts) {
    const std::size_t before = gdiHandleCount();
    const HDC dc = ::CreateCompatibleDC(nullptr);
    const std::size_t withDevice = gdiHandleCount();
    EXPECT_EQ(before + 1, withDevice);
    const std::vector<HGDIOBJ> objects{::CreateSolidBrush(RGB(1, 2, 3)), ::CreateBitmap(3, 3, 1, 32, nullptr),
                                       ::CreateRectRgn(0, 0, 2, 2),
                                       ::CreateFontW(12, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma")};
    EXPECT_EQ(withDevice + objects.size(), gdiHandleCount());
    for (const HGDIOBJ object : objects) {
        ::DeleteObject(object);
    }
    ::DeleteDC(dc);
    EXPECT_EQ(before, gdiHandleCount());
}

TEST(Resources, WindowsCountWithTheirChildrenAndMessageOnlyOnes) {
    const std::size_t before = windowCount();
    {
        ScopedTopLevelWindow host(CSize(50, 50));
        const std::size_t withHost = windowCount();
        EXPECT_EQ(before + 1, withHost);
        const HWND child = ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 9, 9, host, nullptr, nullptr, nullptr);
        ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 9, 9, child, nullptr, nullptr, nullptr);
        const HWND quiet = ::CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
        EXPECT_EQ(withHost + 3, windowCount());
        ::DestroyWindow(quiet);
    }
    EXPECT_EQ(before, windowCount());
}

TEST(Resources, MemoryInUseCountsInBytes) {
    constexpr std::size_t block = 100'000;
    std::vector<std::unique_ptr<char[]>> blocks(10);
    const std::size_t before = heapBytes();
    for (auto& owner : blocks) {
        owner = std::make_unique<char[]>(block);
    }
    const std::size_t during = heapBytes();
    blocks.clear();
    EXPECT_GE(during - before, 10 * block);
    EXPECT_LE(during - before, 10 * block + 10'000);
    EXPECT_LE(heapBytes(), before);
}

} // namespace
} // namespace support
