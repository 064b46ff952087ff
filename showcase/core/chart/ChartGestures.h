#pragma once

#include <optional>
#include <variant>

#include "core/chart/ChartFrame.h"
#include "core/chart/ChartState.h"

namespace Desk {

/// What has to be done about something that the user did.
struct ChartChange {
    bool picture = false;   ///< to be drawn again
    bool crossHair = false; ///< it is elsewhere now, or over something else
    bool range = false;     ///< another part of the series is seen
    bool selection = false; ///< another object is selected, or none

    ChartChange& operator|=(const ChartChange& other);
    bool operator==(const ChartChange&) const = default;
};

/// The mouse over the canvas and what it points at.
struct ChartMouse {
    ChartPosition at;
    ChartObject over;
    bool shift = false;
};

enum class ChartKey { Left, Right, Start, End, ZoomIn, ZoomOut, Remove, Leave, LineTool };

/// The key of the chart by the number that Windows gives it.
std::optional<ChartKey> chartKeyOf(unsigned int key);

/// What presses, moves, releases and keys mean, as a machine of states: at rest, or in one of four drags. The frame
/// that a call is given is the one that the user sees.
class ChartGestures {
public:
    /// Both outlive the gestures.
    ChartGestures(ChartState& state, ChartLines& lines) : m_state(state), m_lines(lines) {}

    ChartChange press(const ChartMouse& mouse, const ChartFrame& frame);
    ChartChange move(const ChartMouse& mouse, const ChartFrame& frame);
    /// The button goes up, or somebody else has taken the mouse: what the drag has done stays.
    ChartChange release();
    /// The mouse has left the canvas.
    ChartChange leave();
    ChartChange key(ChartKey key);
    /// Whether `ChartKey::Leave` has anything to leave.
    bool canLeave() const;
    bool isDragging() const { return m_drag.index() != 0; }
    /// For a turn of the wheel: the place under the mouse stays where it is. `factor` is that of what is seen.
    ChartChange zoomAt(int x, double factor, const ChartFrame& frame);
    /// Another part of the series, as the bar wants it; at least the fewest candles that are ever seen. In a drag
    /// nothing.
    ChartChange setRange(const ChartRange& range);
    ChartChange select(const ChartObject& object);
    /// Another series is shown: drags and what belonged to the old one end.
    ChartChange startSeries(std::size_t candles);

private:
    struct Panning {
        int start;
        double candleWidth;
        ChartRange range;
    };
    struct Selecting {
        std::size_t anchor;
        std::optional<CandleSpan> before;
    };
    struct Reshaping {
        std::size_t line;
        LineGrip grip;
        TrendLine before;
        ChartPoint start;
    };
    struct DrawingLine {
        Reshaping end;
        ChartPosition first;
        ChartPosition last;
    };

    ChartChange pressObject(const ChartMouse& mouse, const ChartFrame& frame);
    ChartChange beginLine(const ChartMouse& mouse, const ChartFrame& frame);
    ChartChange beginSpan(const ChartMouse& mouse, const ChartFrame& frame);
    ChartChange follow(Panning& drag, const ChartMouse& mouse, const ChartFrame& frame);
    ChartChange follow(Selecting& drag, const ChartMouse& mouse, const ChartFrame& frame);
    ChartChange follow(Reshaping& drag, const ChartMouse& mouse, const ChartFrame& frame);
    ChartChange follow(DrawingLine& drag, const ChartMouse& mouse, const ChartFrame& frame);
    ChartChange hover(const ChartMouse& mouse, const ChartFrame& frame);
    bool hoverOver(const ChartObject& object);
    ChartChange abandonDrag();
    ChartChange removeSelected();
    ChartChange removeLine(std::size_t line);
    ChartChange showRange(const ChartRange& range);
    ChartChange pan(double share);
    ChartChange zoom(double factor, double anchor);
    ChartChange leaveOne();
    ChartObject known(const ChartObject& object) const;
    std::size_t candleAt(int x, const ChartFrame& frame) const;

    ChartState& m_state;
    ChartLines& m_lines;
    std::variant<std::monostate, Panning, Selecting, Reshaping, DrawingLine> m_drag;
};

/// What is seen of a series at first: its end.
ChartRange firstRange(std::size_t candles);

} // namespace Desk
