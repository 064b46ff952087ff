#pragma once

#include <optional>
#include <string>
#include <vector>

#include "chart/ChartStyles.h"
#include "core/Instruments.h"
#include "core/chart/CandleSource.h"
#include "core/chart/ChartGestures.h"
#include "core/chart/ChartState.h"

namespace Desk {

/// What the chart shows: one instrument's candles with their average and lines, the styles of both themes, and what
/// the user has made of it. No window.
class ChartModel : private ChartLines {
public:
    ChartModel(CandleSource source, ChartMemory memory);

    /// Shows an instrument, or nothing with null; true if that is another one than before. `session` is that of its
    /// price, null if it has not ticked yet.
    bool show(const Instrument* instrument, const PriceSession* session = nullptr);
    /// The price of the instrument that is shown has ticked; true if its last candle is another one now.
    bool follow(const PriceSession& session);
    const CandleSource& source() const { return m_source; }
    const Candles& candles() const { return m_candles; }
    const std::vector<double>& average() const { return m_average; }
    /// The greatest price and volume of all candles, 0 without any.
    double greatestPrice() const { return m_greatestPrice; }
    double greatestVolume() const { return m_greatestVolume; }
    const std::wstring& symbol() const { return m_symbol; }
    const std::wstring& name() const { return m_name; }
    /// Why there are no candles; empty if there is no instrument either.
    const std::wstring& missing() const { return m_missing; }

    const ChartState& state() const { return m_state; }
    ChartGestures& gestures() { return m_gestures; }
    const ChartLines& lines() const { return *this; }

    void setTheme(DeskTheme theme) { m_theme = theme; }
    DeskTheme theme() const { return m_theme; }
    const ChartStyles& styles() const { return m_memory.styles[static_cast<std::size_t>(m_theme)]; }
    const ChartStyle& styleOf(ChartPart part) const { return styles()[static_cast<std::size_t>(part)]; }
    const ChartStyle& styleOfLine(std::size_t line) const { return m_lines[line].style; }
    /// Of the selected object, as the user has changed it. Without one nothing happens.
    void setSelectedStyle(const ChartStyle& style);

    /// A line of the instrument that is shown, in the style of new ones.
    void addLine(const TrendLine& line) override;
    /// What is to be kept, with the lines of all instruments.
    ChartMemory memory() const;

private:
    struct StyledLine {
        TrendLine line;
        ChartStyle style;
    };

    // ChartLines
    std::size_t lineCount() const override { return m_lines.size(); }
    const TrendLine& line(std::size_t index) const override { return m_lines[index].line; }
    void setLine(std::size_t index, const TrendLine& line) override { m_lines[index].line = line; }
    void removeLine(std::size_t index) override;

    void keepLines(ChartMemory& memory) const;
    void takeLines();

    CandleSource m_source;
    ChartMemory m_memory; ///< without the lines of the instrument that is shown, if it has candles
    DeskTheme m_theme = DeskTheme::White;
    std::string m_key; ///< the symbol in UTF-8
    std::wstring m_symbol;
    std::wstring m_name;
    std::wstring m_missing;
    Candles m_candles;
    std::optional<Candle> m_lastOfSource; ///< the last candle without what has ticked since
    std::vector<double> m_average;
    double m_greatestPrice = 0;
    double m_greatestVolume = 0;
    std::vector<StyledLine> m_lines;
    ChartState m_state;
    ChartGestures m_gestures{m_state, *this};
};

} // namespace Desk
