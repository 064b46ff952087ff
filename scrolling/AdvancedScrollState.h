#pragma once

#include <OrtinControls/AdvancedScroll.h>

#include "BarDrag.h"
#include "BarLayout.h"
#include "BarPicture.h"
#include "RangeWindow.h"

/// What a scroll and zoom bar holds.
struct AdvancedScrollState {
    RangeWindow window;
    /// As of the last paint, drag step or `SetCurrent`.
    BarLayout layout;
    /// For the size of the last paint.
    BarPicture::Samples samples;

    /// What is dragged, and what decides the cursor.
    struct Gesture {
        BarDrag::Part drag = BarDrag::Part::None;
        BarDrag::Part under = BarDrag::Part::None;
        /// The base of drag distances.
        CPoint lastPoint;
        bool skipFirstTimerTick = false;
        bool pressed = false;
        bool hover = false;
    };
    Gesture gesture;

    AdvancedScroll::IScrollHandler* handler = nullptr;
    /// `SetCurrent` drives a drag: one that the host calls from there does not drive it again.
    bool drivingDrag = false;
    /// False once the bar has been destroyed.
    bool alive = true;
};
