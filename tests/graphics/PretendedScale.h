#pragma once

/// The scale factor that the library sees: that of the display, or that of ORTIN_TEST_DPI pixels an inch, which a test
/// program can be started with to see more resolutions than there are displays.
double pretendedScale();
