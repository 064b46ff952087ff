#pragma once

#include <array>
#include <utility>

#include <OrtinControls/Export.h>
#include <afxwin.h>

/// Colour arithmetic, what follows from the screen's resolution, and three drawing routines that controls share.
///
/// Colours are COLORREF values, 0x00BBGGRR; the high byte of an argument is ignored. The scale factor is the logical
/// pixels an inch of the screen / 96. Nothing here throws but for DrawRectangleFrame.
class ORTIN_CONTROLS_API GraphicsHelper {
public:
    /// Never below 1. Found out at the first call and kept: a later change of the system's resolution is not followed.
    static double GetSystemScaleFactor();
    /// Which of `tierCount` steps of detail suits the screen: 0 up to factor 1, then two for each whole factor above 1,
    /// rounded up, at most `tierCount - 1`.
    static int CalculateDPIScalingTier(int tierCount);
    /// The same with `step` tiers for each whole factor above 1.
    static int CalculateDPIScalingTier(int tierCount, double step);
    /// A height given for 96 pixels an inch, at the scale of the screen; rounded half away from zero.
    static double CalculateDpiAwareHeight(double height);
    /// A height at the scale of the screen, for 96 pixels an inch; rounded half away from zero.
    static double CalculateDpiUnawareHeight(double height);

    /// The one of eight resources, drawn for the factors 1, 1.25, 1.5, 1.75, 2, 2.5, 3 and 3.5, that fits the screen.
    static unsigned int PickFrom8GraphicIDs(std::array<unsigned int, 8> ids);
    /// The sizes of small and of large ribbon icons that fit the screen, in pixels.
    static std::pair<CSize, CSize> GetDpiRibbinIconsSize();
    /// The one of `ids` whose strip holds icons of the width 16, 24, 32, 40, 48, 56, 64, 72, 96, 112 or 128; 0 for any
    /// other width.
    static unsigned int ChooseRibbonIconsBarIdBasingOnSize(CSize size, const std::array<unsigned int, 11>& ids);

    /// Hue, saturation and lightness as bytes, fractions cut off. A grey has hue and saturation 0.
    static void Rgb2Hsl(unsigned long color, unsigned char& h, unsigned char& s, unsigned char& l);
    static unsigned long Hsl2Rgb(unsigned char h, unsigned char s, unsigned char l);
    /// `percent` is the share of `first`: 100 gives `first`, 0 gives `second`. Others extrapolate, each component cut
    /// to its low 8 bits.
    static unsigned long MixColor(unsigned long first, unsigned long second, int percent);
    /// Moves the lightness by `amount`, cut to 8 bits and at most 127, toward the middle: dark colours get lighter,
    /// light ones darker.
    static unsigned long CalcHighlightColor(unsigned long color, int amount);

    /// From `first` at the top to `second` at the bottom. The rectangle is half-open, as those of GradientFill are.
    static void DrawGradientV(CDC& dc, const CRect& rect, unsigned long first, unsigned long second);
    /// Mirrored: from `first` at the left to `second` in the middle and back to `first` at the right.
    static void DrawGradientH(CDC& dc, const CRect& rect, unsigned long first, unsigned long second);
    /// A frame that runs on the coordinates of `right` and `bottom` themselves, not one pixel inside them. `dc` is not
    /// null and has its old pen afterwards. Throws CResourceException if there is no pen to be had.
    static void DrawRectangleFrame(CDC* dc, const CRect& rect, int width, unsigned long color);

protected:
    /// Replaces a hue, whole turns of which do not matter, by the component that it gives between `m1` and `m2`.
    static void ComputeColorFromHue(double& hue, double m1, double m2);
};
