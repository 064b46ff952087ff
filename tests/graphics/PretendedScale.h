#pragma once

/// The scale factor that the library sees: that of the display, or that of ORTIN_TEST_DPI pixels an inch, which a test
/// program can be started with to see more resolutions than there are displays.
double pretendedScale();
/// A height at 96 pixels an inch, at that scale; and back.
long scaled(int height);
long unscaled(int height);
