#include "ReferenceBar.h"

#include <cstdio>
#include <utility>

std::string describeChange(int type, double start, double end, double delta) {
    char text[120];
    (void)std::snprintf(text, sizeof text, "%d %.17g %.17g %.17g; ", type, start, end, delta);
    return text;
}

ReferenceBar::ReferenceBar(int width, int height) : m_width(width), m_height(height) {
    layOut();
}

void ReferenceBar::resize(int width, int height) {
    m_width = width;
    m_height = height;
}

void ReferenceBar::layOut() {
    const int edge = m_height / 2;
    track = m_width - 2 * edge;
    int inset = m_height / 8;
    if (inset < 2) {
        inset = 2;
    }
    if (inset > 6) {
        inset = 6;
    }
    m_client = {0, 0, m_width, m_height};
    const int a = static_cast<int>(track * start);
    const int b = static_cast<int>(track * end);
    thumb = {a + edge, inset, b + edge, m_height - inset};
    leftStrip = {a, inset, a + edge, m_height - inset};
    rightStrip = {thumb.right, inset, thumb.right + edge, m_height - inset};
    const int q = edge / 2;
    thumbPress = thumb;
    if (thumb.right - thumb.left >= edge) {
        thumbPress.left += edge;
        thumbPress.right -= edge;
    } else {
        thumbPress.left -= q;
        thumbPress.right += q;
    }
    leftPress = leftStrip;
    leftPress.left -= q;
    leftPress.right += edge;
    rightPress = rightStrip;
    rightPress.left -= edge;
    rightPress.right += q;
}

void ReferenceBar::set(double newStart, double newEnd) {
    start = newStart;
    end = newEnd;
    layOut();
}

void ReferenceBar::tell(int type, double delta) {
    m_log += describeChange(type, start, end, delta);
}

void ReferenceBar::moveBy(double delta) {
    const double width = end - start;
    start += delta;
    end += delta;
    if (start < 0) {
        start = 0;
        end = width;
    }
    if (end > 1) {
        end = 1;
        start = 1 - width;
    }
    tell(0, delta);
}

void ReferenceBar::press(int x, int y) {
    int part = 0;
    if (leftPress.has(x, y)) {
        part = 2;
    } else if (rightPress.has(x, y)) {
        part = 3;
    } else if (thumbPress.has(x, y)) {
        part = 1;
    } else if (m_client.has(x, y)) {
        part = 4;
    }
    if (part == 4) {
        int step = x - (thumb.left + thumb.right) / 2;
        if (x < thumb.left) {
            step = thumb.left - thumb.right;
        } else if (x >= thumb.right) {
            step = thumb.right - thumb.left;
        }
        moveBy(track > 0 ? step / track : 0);
    }
    if (part != 0) {
        drag = part;
    }
    m_lastX = x;
}

void ReferenceBar::move(unsigned flags, int x, int y) {
    cursor = drag;
    if (drag == 0) {
        cursor = thumbPress.has(x, y) ? 1 : leftPress.has(x, y) ? 2 : rightPress.has(x, y) ? 3 : 0;
    }
    if (drag != 0 && flags == 0) {
        tell(drag == 1 || drag == 4 ? 1 : 3);
        drag = 0;
        return;
    }
    const double moved = track > 0 ? (x - m_lastX) / track : 0;
    const double apart = track > 0 ? 2.0 / track : 0;
    if (drag == 1) {
        moveBy(moved);
    } else if (drag == 2) {
        start += moved;
        start = start < 0 ? 0 : start;
        if (start > end - 1e-06) {
            start = end - 1e-06 < 0 ? 0 : end - 1e-06;
        }
        layOut();
        if (track > 0 && rightStrip.left - leftStrip.right < 3) {
            start = end - apart < 0 ? 0 : end - apart;
        }
        x = x < leftStrip.right ? x : leftStrip.right;
        tell(2);
    } else if (drag == 3) {
        end += moved;
        end = end > 1 ? 1 : end;
        if (start > end - 1e-06) {
            end = start + 1e-06 > 1 ? 1 : start + 1e-06;
        }
        layOut();
        if (track > 0 && rightStrip.left - leftStrip.right < 3) {
            end = start + apart > 1 ? 1 : start + apart;
        }
        x = x > rightStrip.left ? x : rightStrip.left;
        tell(2);
    }
    m_lastX = x < 0 ? 0 : x > m_client.right ? m_client.right : x;
}

void ReferenceBar::doubleClick(int x, int y) {
    if (!thumbPress.has(x, y) && !leftPress.has(x, y) && !rightPress.has(x, y)) {
        return;
    }
    if (start == 0.0 && end == 1.0) {
        start = m_savedStart;
        end = m_savedEnd;
        m_savedStart = 0;
        m_savedEnd = 1;
    } else {
        m_savedStart = start;
        m_savedEnd = end;
        start = 0;
        end = 1;
    }
    tell(3);
    drag = 0;
}

void ReferenceBar::turnWheel(int delta) {
    const int notches = delta / 120;
    moveBy((end - start) * notches * 0.1);
}

std::string ReferenceBar::takeLog() {
    return std::exchange(m_log, {});
}
