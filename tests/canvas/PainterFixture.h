#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <set>
#include <vector>

#include <OrtinControls/OrtinControls.h>

#include "support/Capture.h"

using Point = OrtinPoint<float>;

inline constexpr COLORREF kWhite = RGB(255, 255, 255);
inline constexpr COLORREF kBlack = RGB(0, 0, 0);
inline constexpr COLORREF kRed = RGB(255, 0, 0);
inline constexpr COLORREF kBlue = RGB(0, 0, 255);
inline constexpr COLORREF kGreen = RGB(0, 200, 0);
inline constexpr unsigned int kId = 0x123456;
inline constexpr unsigned int kOtherId = 0x00BEEF;

/// GDI objects for the length of a test.
inline HPEN redPen() {
    static const CPen pen(PS_SOLID, 1, kRed);
    return pen;
}

/// A painter with a shadow, and styles: a red line, a shape of red outline and blue inside.
class PainterFixture : public testing::Test {
protected:
    static constexpr int kWidth = 60;
    static constexpr int kHeight = 40;

    PainterFixture();

    /// A new frame on white.
    void begin(int width = kWidth, int height = kHeight);
    /// What the window would copy.
    support::Pixels picture() const;
    /// What each pixel gives when it is asked for its object.
    support::Pixels shadow() const;
    std::set<unsigned int> idsInShadow() const;

    VectorCanvas::VectorPainterGdi painter;
    VectorCanvas::DrawContextGdiLine line;
    VectorCanvas::DrawContextGdiLineAndFill shape;
};

/// The same drawn by bare calls, to compare with.
class Reference {
public:
    explicit Reference(int width = 60, int height = 40, COLORREF background = kWhite)
        : m_device(width, height, background) {}

    HDC dc() const { return m_device.dc(); }
    support::Pixels pixels() const { return m_device.pixels(); }

    void lines(std::initializer_list<POINT> points, int width = 1, COLORREF color = kRed);

private:
    support::MemoryDevice m_device;
};
