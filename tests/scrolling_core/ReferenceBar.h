#pragma once

#include <string>

/// A scroll and zoom bar in the plainest words, all in one place: what the control is compared with. Points are client
/// pixels.
class ReferenceBar {
public:
    ReferenceBar(int width, int height);

    void resize(int width, int height);
    /// What a paint does to it.
    void layOut();
    void set(double newStart, double newEnd);
    void press(int x, int y);
    /// `flags` as the mouse message has them, 0 with nothing pressed.
    void move(unsigned flags, int x, int y);
    void release(unsigned flags, int x, int y) { move(flags, x, y); }
    void doubleClick(int x, int y);
    void turnWheel(int delta);

    /// What the host was told since the last time: "type start end delta; " with all digits.
    std::string takeLog();

    double start = 0.0;
    double end = 1.0;
    int drag = 0;
    int cursor = 0;

    struct Rect {
        int left = 0, top = 0, right = 0, bottom = 0;
        bool has(int x, int y) const { return left <= x && x < right && top <= y && y < bottom; }
    };
    Rect thumb, leftStrip, rightStrip, leftPress, rightPress, thumbPress;
    double track = 1.0;

private:
    void moveBy(double delta);
    void tell(int type, double delta = 0.0);

    int m_width, m_height;
    Rect m_client;
    double m_savedStart = 0.0, m_savedEnd = 1.0;
    int m_lastX = 0;
    std::string m_log;
};

/// One entry of such a log.
std::string describeChange(int type, double start, double end, double delta);
