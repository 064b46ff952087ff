#pragma once

/// A window over a range: its edges as fractions of the whole, usually 0 to 1. No windows of the system.
struct RangeWindow {
    double start = 0.0;
    double end = 1.0;
    /// What `toggleFull` brings back.
    double savedStart = 0.0;
    double savedEnd = 1.0;

    double width() const { return end - start; }
    /// Moves it and keeps its width; what is too far ends at 0 or 1.
    void move(double by);
    /// Moves one edge as far as the range and the other edge let it.
    void moveStart(double by);
    void moveEnd(double by);
    /// Puts an edge beside the other one, inside the range.
    void startBeforeEnd(double by);
    void endAfterStart(double by);
    /// From any window to the whole range, and from the whole range to the window of before.
    void toggleFull();
};
