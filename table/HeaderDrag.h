#pragma once

/// The gesture of pressing and moving on a header: a click, or a column in flight. No windows.
/// Points are client pixels of the header, columns are display positions.
class HeaderDrag {
public:
    struct Point {
        int x = 0;
        int y = 0;
    };
    /// What lies under the mouse.
    struct Hit {
        bool onHeader = false;
        bool onDivider = false;
        int position = 0;
    };
    enum class Release {
        Nothing,
        Click, ///< the press never moved
        Move,  ///< `sourcePosition` was dropped on `targetPosition`
    };

    /// Gives true if the native control must not see the press: it would start its own drag.
    bool press(Point point, const Hit& hit);
    /// The pointer moved over `position`. Gives true if the mark has changed; `targetChanged` tells whether the host
    /// must be asked for the new target.
    struct Motion {
        bool repaint = false;
        bool targetChanged = false;
    };
    Motion move(Point point, int position);
    /// What the release means. The positions are still there to be read; `finish` ends the gesture.
    Release release() const;
    void forgetColumn();
    void finish();

    /// True while the mark of a column in flight is to be drawn.
    bool inFlight() const;
    /// True while a press may move columns.
    bool canMove() const { return buttonDown && mouseMovingColumns; }

    bool mouseMovingColumns = false;
    bool pressOnDivider = false;
    bool dropAllowed = false;
    bool buttonDown = false;
    bool moved = false;
    bool pressOnItem = false;
    bool dragShown = false;
    Point pressPosition;
    int sourcePosition = -1;
    int targetPosition = -1;
};
