#pragma once

#include <windows.h>

#include <algorithm>

class CPoint;
class CRect;

/// A width and a height, or a displacement.
class CSize : public tagSIZE {
public:
    constexpr CSize() noexcept : tagSIZE{} {}
    constexpr CSize(int width, int height) noexcept : tagSIZE{width, height} {}
    constexpr CSize(const SIZE& size) noexcept : tagSIZE(size) {}
    constexpr explicit CSize(const POINT& point) noexcept : tagSIZE{point.x, point.y} {}
    /// The low word is the width, the high word the height, both signed.
    explicit CSize(DWORD packed) noexcept
        : tagSIZE{static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed))} {}

    constexpr void SetSize(int width, int height) noexcept { *this = CSize(width, height); }
    constexpr CSize& operator+=(const SIZE& other) noexcept { return *this = *this + other; }
    constexpr CSize& operator-=(const SIZE& other) noexcept { return *this = *this - other; }
    constexpr CSize operator+(const SIZE& other) const noexcept { return {cx + other.cx, cy + other.cy}; }
    constexpr CSize operator-(const SIZE& other) const noexcept { return {cx - other.cx, cy - other.cy}; }
    constexpr CSize operator-() const noexcept { return {-cx, -cy}; }
    constexpr CPoint operator+(const POINT& point) const noexcept;
    constexpr CPoint operator-(const POINT& point) const noexcept;
    constexpr CRect operator+(const RECT* rect) const noexcept;
    constexpr CRect operator-(const RECT* rect) const noexcept;

    friend constexpr bool operator==(const CSize& left, const CSize& right) noexcept {
        return left.cx == right.cx && left.cy == right.cy;
    }
};

class CPoint : public tagPOINT {
public:
    constexpr CPoint() noexcept : tagPOINT{} {}
    constexpr CPoint(int horizontal, int vertical) noexcept : tagPOINT{horizontal, vertical} {}
    constexpr CPoint(const POINT& point) noexcept : tagPOINT(point) {}
    constexpr explicit CPoint(const SIZE& size) noexcept : tagPOINT{size.cx, size.cy} {}
    /// A packed point as in the lParam of a mouse message: the low word is x, the high word y, both signed.
    explicit CPoint(LPARAM packed) noexcept
        : tagPOINT{static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed))} {}

    constexpr void SetPoint(int horizontal, int vertical) noexcept { *this = CPoint(horizontal, vertical); }
    constexpr void Offset(int horizontal, int vertical) noexcept {
        x += horizontal;
        y += vertical;
    }
    constexpr void Offset(const POINT& by) noexcept { Offset(by.x, by.y); }
    constexpr void Offset(const SIZE& by) noexcept { Offset(by.cx, by.cy); }
    constexpr CPoint& operator+=(const SIZE& by) noexcept { return *this = *this + by; }
    constexpr CPoint& operator-=(const SIZE& by) noexcept { return *this = *this - by; }
    constexpr CPoint& operator+=(const POINT& by) noexcept { return *this = *this + by; }
    constexpr CPoint& operator-=(const POINT& by) noexcept { return *this = CPoint(x - by.x, y - by.y); }
    constexpr CPoint operator+(const SIZE& by) const noexcept { return {x + by.cx, y + by.cy}; }
    constexpr CPoint operator-(const SIZE& by) const noexcept { return {x - by.cx, y - by.cy}; }
    constexpr CPoint operator+(const POINT& by) const noexcept { return {x + by.x, y + by.y}; }
    constexpr CSize operator-(const POINT& other) const noexcept { return {x - other.x, y - other.y}; }
    constexpr CPoint operator-() const noexcept { return {-x, -y}; }
    constexpr CRect operator+(const RECT* rect) const noexcept;
    constexpr CRect operator-(const RECT* rect) const noexcept;

    friend constexpr bool operator==(const CPoint& left, const CPoint& right) noexcept {
        return left.x == right.x && left.y == right.y;
    }
};

/// A rectangle, half-open: the left and top edges belong to it, the right and bottom edges do not.
///
/// Most operations expect a normalised rectangle (left <= right, top <= bottom); NormalizeRect makes one.
class CRect : public tagRECT {
public:
    constexpr CRect() noexcept : tagRECT{} {}
    constexpr CRect(int l, int t, int r, int b) noexcept : tagRECT{l, t, r, b} {}
    constexpr CRect(const RECT& rect) noexcept : tagRECT(rect) {}
    constexpr CRect(const RECT* rect) noexcept : tagRECT(*rect) {}
    constexpr CRect(const POINT& topLeft, const SIZE& size) noexcept
        : tagRECT{topLeft.x, topLeft.y, topLeft.x + size.cx, topLeft.y + size.cy} {}
    constexpr CRect(const POINT& topLeft, const POINT& bottomRight) noexcept
        : tagRECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}

    constexpr int Width() const noexcept { return right - left; }
    constexpr int Height() const noexcept { return bottom - top; }
    constexpr CSize Size() const noexcept { return {Width(), Height()}; }
    CPoint& TopLeft() noexcept { return *reinterpret_cast<CPoint*>(this); }
    CPoint& BottomRight() noexcept { return *(reinterpret_cast<CPoint*>(this) + 1); }
    constexpr CPoint TopLeft() const noexcept { return {left, top}; }
    constexpr CPoint BottomRight() const noexcept { return {right, bottom}; }
    /// Halves truncate toward zero.
    constexpr CPoint CenterPoint() const noexcept { return {(left + right) / 2, (top + bottom) / 2}; }
    operator LPRECT() noexcept { return this; }
    constexpr operator LPCRECT() const noexcept { return this; }

    constexpr bool IsRectEmpty() const noexcept { return left >= right || top >= bottom; }
    /// True only if all four edges are 0.
    constexpr bool IsRectNull() const noexcept { return left == 0 && top == 0 && right == 0 && bottom == 0; }
    constexpr bool PtInRect(const POINT& point) const noexcept {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
    constexpr void SetRect(int l, int t, int r, int b) noexcept { *this = CRect(l, t, r, b); }
    constexpr void SetRect(const POINT& topLeft, const POINT& bottomRight) noexcept {
        *this = CRect(topLeft, bottomRight);
    }
    constexpr void SetRectEmpty() noexcept { *this = CRect(); }
    constexpr void CopyRect(const RECT* source) noexcept { *this = CRect(source); }
    constexpr bool EqualRect(const RECT* other) const noexcept { return *this == CRect(other); }

    constexpr void InflateRect(int horizontal, int vertical) noexcept {
        InflateRect(horizontal, vertical, horizontal, vertical);
    }
    constexpr void InflateRect(const SIZE& by) noexcept { InflateRect(by.cx, by.cy); }
    constexpr void InflateRect(const RECT* by) noexcept { InflateRect(by->left, by->top, by->right, by->bottom); }
    constexpr void InflateRect(int l, int t, int r, int b) noexcept {
        *this = CRect(left - l, top - t, right + r, bottom + b);
    }
    constexpr void DeflateRect(int horizontal, int vertical) noexcept { InflateRect(-horizontal, -vertical); }
    constexpr void DeflateRect(const SIZE& by) noexcept { InflateRect(-by.cx, -by.cy); }
    constexpr void DeflateRect(const RECT* by) noexcept { DeflateRect(by->left, by->top, by->right, by->bottom); }
    constexpr void DeflateRect(int l, int t, int r, int b) noexcept { InflateRect(-l, -t, -r, -b); }
    constexpr void OffsetRect(int horizontal, int vertical) noexcept {
        *this = CRect(left + horizontal, top + vertical, right + horizontal, bottom + vertical);
    }
    constexpr void OffsetRect(const POINT& by) noexcept { OffsetRect(by.x, by.y); }
    constexpr void OffsetRect(const SIZE& by) noexcept { OffsetRect(by.cx, by.cy); }
    constexpr void MoveToX(int newLeft) noexcept { OffsetRect(newLeft - left, 0); }
    constexpr void MoveToY(int newTop) noexcept { OffsetRect(0, newTop - top); }
    constexpr void MoveToXY(int newLeft, int newTop) noexcept { OffsetRect(newLeft - left, newTop - top); }
    constexpr void MoveToXY(const POINT& topLeft) noexcept { MoveToXY(topLeft.x, topLeft.y); }
    constexpr void SwapLeftRight() noexcept { std::swap(left, right); }
    static void SwapLeftRight(LPRECT rect) noexcept { std::swap(rect->left, rect->right); }
    constexpr void NormalizeRect() noexcept {
        *this = CRect(std::min(left, right), std::min(top, bottom), std::max(left, right), std::max(top, bottom));
    }

    /// Becomes what the two share; false and empty if they share nothing.
    BOOL IntersectRect(LPCRECT first, LPCRECT second) noexcept { return ::IntersectRect(this, first, second); }
    /// Becomes the smallest rectangle around both, empty ones ignored; false if both are empty.
    BOOL UnionRect(LPCRECT first, LPCRECT second) noexcept { return ::UnionRect(this, first, second); }
    /// Becomes `from` without `removed`, if the rest is a rectangle; otherwise `from`.
    BOOL SubtractRect(LPCRECT from, LPCRECT removed) noexcept { return ::SubtractRect(this, from, removed); }

    constexpr CRect& operator+=(const POINT& by) noexcept { return *this = *this + by; }
    constexpr CRect& operator+=(const SIZE& by) noexcept { return *this = *this + by; }
    constexpr CRect& operator+=(const RECT* by) noexcept { return *this = *this + by; }
    constexpr CRect& operator-=(const POINT& by) noexcept { return *this = *this - by; }
    constexpr CRect& operator-=(const SIZE& by) noexcept { return *this = *this - by; }
    constexpr CRect& operator-=(const RECT* by) noexcept { return *this = *this - by; }
    CRect& operator&=(const RECT& other) noexcept { return *this = *this & other; }
    CRect& operator|=(const RECT& other) noexcept { return *this = *this | other; }

    constexpr CRect operator+(const POINT& by) const noexcept {
        return {left + by.x, top + by.y, right + by.x, bottom + by.y};
    }
    constexpr CRect operator+(const SIZE& by) const noexcept { return *this + CPoint(by); }
    /// Inflates each side by the same side of `by`.
    constexpr CRect operator+(const RECT* by) const noexcept {
        CRect result(*this);
        result.InflateRect(by);
        return result;
    }
    constexpr CRect operator-(const POINT& by) const noexcept { return *this + CPoint(-by.x, -by.y); }
    constexpr CRect operator-(const SIZE& by) const noexcept { return *this + CPoint(-by.cx, -by.cy); }
    /// Deflates each side by the same side of `by`.
    constexpr CRect operator-(const RECT* by) const noexcept {
        CRect result(*this);
        result.DeflateRect(by);
        return result;
    }
    CRect operator&(const RECT& other) const noexcept {
        CRect result;
        result.IntersectRect(this, &other);
        return result;
    }
    CRect operator|(const RECT& other) const noexcept {
        CRect result;
        result.UnionRect(this, &other);
        return result;
    }
    /// Each edge times `multiplier` / `divisor`, rounded to the nearest, halves away from zero.
    CRect MulDiv(int multiplier, int divisor) const noexcept {
        return {::MulDiv(left, multiplier, divisor), ::MulDiv(top, multiplier, divisor),
                ::MulDiv(right, multiplier, divisor), ::MulDiv(bottom, multiplier, divisor)};
    }

    friend constexpr bool operator==(const CRect& a, const CRect& b) noexcept {
        return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
    }
};

constexpr CPoint CSize::operator+(const POINT& point) const noexcept {
    return {cx + point.x, cy + point.y};
}
constexpr CPoint CSize::operator-(const POINT& point) const noexcept {
    return {cx - point.x, cy - point.y};
}
constexpr CRect CSize::operator+(const RECT* rect) const noexcept {
    return CRect(rect) + *this;
}
constexpr CRect CSize::operator-(const RECT* rect) const noexcept {
    return CRect(rect) - *this;
}
constexpr CRect CPoint::operator+(const RECT* rect) const noexcept {
    return CRect(rect) + *this;
}
constexpr CRect CPoint::operator-(const RECT* rect) const noexcept {
    return CRect(rect) - *this;
}
