#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <windows.h>

namespace support {

/// A picture as plain colours: `width() * height()` of them, row by row from the top. Rectangles are half-open and in
/// pixels of the picture; parts of them outside it are ignored.
class Pixels {
public:
    Pixels(int width, int height);
    /// What a device context shows within `area` of its logical coordinates, as it would be copied elsewhere.
    static Pixels ofDevice(HDC device, const RECT& area);
    /// What a window of this process shows in its client area; what lies above it on the screen does not matter.
    static Pixels ofClient(HWND window);
    /// The same with its frame.
    static Pixels ofWindow(HWND window);
    /// What the user sees, windows of other processes too.
    static Pixels ofScreen(const RECT& area);

    int width() const { return m_width; }
    int height() const { return m_height; }
    RECT bounds() const { return {0, 0, m_width, m_height}; }

    /// CLR_INVALID outside the picture.
    COLORREF at(int x, int y) const;
    void set(int x, int y, COLORREF colour);
    Pixels part(const RECT& area) const;

    std::size_t count(COLORREF colour) const { return count(colour, bounds()); }
    std::size_t count(COLORREF colour, const RECT& area) const;
    /// The share of all pixels with more than that green, which says most of how bright a colour is.
    double shareBrighterThan(BYTE green) const;
    /// The only colour of `area`, or nothing if there are several or none.
    std::optional<COLORREF> onlyColour(const RECT& area) const;
    /// The smallest rectangle that holds each pixel of this colour.
    std::optional<RECT> boundsOf(COLORREF colour) const;

    bool operator==(const Pixels& other) const = default;

    /// Throws std::runtime_error when GDI+ cannot write the file. The folder is made.
    void savePng(const std::filesystem::path& file) const;

private:
    RECT clipped(const RECT& area) const;

    int m_width;
    int m_height;
    std::vector<COLORREF> m_colours;
};

struct Difference {
    RECT bounds; ///< of the pixels that differ
    std::size_t count;
    POINT first; ///< the first of them, row by row
};

/// Nothing for equal pictures of one size. Of pictures of two sizes only what both have is compared.
std::optional<Difference> difference(const Pixels& actual, const Pixels& expected);

/// For EXPECT_TRUE: on failure says where the pictures differ, and writes both beside the test program as
/// pictures/TEST-NAME-actual.png and -expected.png.
testing::AssertionResult samePixels(const Pixels& actual, const Pixels& expected);

/// Where pictures of tests lie: beside the test program.
std::filesystem::path picturesFolder();

/// "#RRGGBB"
std::string describe(COLORREF colour);

/// A memory device with a picture of 32 bits a pixel selected, for drawing that is looked at afterwards.
class MemoryDevice {
public:
    /// Filled with `background`.
    MemoryDevice(int width, int height, COLORREF background = RGB(255, 255, 255));
    ~MemoryDevice();
    MemoryDevice(const MemoryDevice&) = delete;
    MemoryDevice& operator=(const MemoryDevice&) = delete;

    HDC dc() const { return m_dc; }
    Pixels pixels() const;

private:
    int m_width;
    int m_height;
    HDC m_dc = nullptr;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_previous = nullptr;
    void* m_bits = nullptr;
};

} // namespace support
