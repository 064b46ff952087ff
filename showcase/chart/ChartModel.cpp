#include "ChartModel.h"

#include <OrtinFoundation/StringTools.h>

#include <algorithm>
#include <utility>

#include "core/chart/ChartTexts.h"
#include "core/chart/MovingAverage.h"

namespace Desk {

namespace {

std::vector<std::wstring> wide(const std::vector<std::string>& texts) {
    std::vector<std::wstring> all(texts.size());
    std::transform(texts.begin(), texts.end(), all.begin(), OrtinTools::String::Utf8ToWide);
    return all;
}

double greatest(const Candles& candles, double Candle::*value) {
    double found = 0;
    for (const Candle& candle : candles)
        found = std::max(found, candle.*value);
    return found;
}

} // namespace

ChartModel::ChartModel(CandleSource source, ChartMemory memory)
    : m_source(std::move(source)),
      m_memory(std::move(memory)) {}

bool ChartModel::show(const Instrument* instrument, const PriceSession* session) {
    const std::string key = instrument ? instrument->symbol : std::string();
    if (key == m_key)
        return false;
    // A line that is hardly begun is not kept.
    m_gestures.release();
    keepLines(m_memory);
    m_key = key;
    m_symbol = OrtinTools::String::Utf8ToWide(key);
    m_name = instrument ? OrtinTools::String::Utf8ToWide(instrument->name) : std::wstring();
    // What has ticked since is not in the past of an invented course.
    m_candles = instrument ? m_source.candlesOf(key, session ? session->first : instrument->price) : Candles();
    m_lastOfSource = m_candles.empty() ? std::nullopt : std::optional(m_candles.back());
    m_missing = instrument && m_candles.empty() ? missingText(m_symbol, wide(m_source.symbols())) : std::wstring();
    m_average = movingAverage(m_candles, AveragePeriod);
    m_greatestPrice = greatest(m_candles, &Candle::high);
    m_greatestVolume = greatest(m_candles, &Candle::volume);
    if (session)
        follow(*session);
    takeLines();
    m_gestures.startSeries(m_candles.size());
    return true;
}

bool ChartModel::follow(const PriceSession& session) {
    if (!m_lastOfSource)
        return false;
    const Candle carried = carriedOn(*m_lastOfSource, session);
    if (m_candles.back() == carried)
        return false;
    m_candles.back() = carried;
    m_greatestPrice = std::max(m_greatestPrice, carried.high);
    renewLastAverage(m_average, m_candles, AveragePeriod);
    return true;
}

// Lines

void ChartModel::addLine(const TrendLine& line) {
    m_lines.push_back({line, styleOf(ChartPart::NewLine)});
}

void ChartModel::removeLine(std::size_t index) {
    m_lines.erase(m_lines.begin() + static_cast<std::ptrdiff_t>(index));
}

ChartMemory ChartModel::memory() const {
    ChartMemory memory = m_memory;
    keepLines(memory);
    return memory;
}

void ChartModel::keepLines(ChartMemory& memory) const {
    for (const StyledLine& line : m_lines)
        memory.lines.push_back({m_key, anchored(line.line, m_candles), line.style});
}

/// Lines of an instrument without candles wait in the memory for a start that has some.
void ChartModel::takeLines() {
    m_lines.clear();
    if (m_candles.empty())
        return;
    const auto others = std::stable_partition(m_memory.lines.begin(), m_memory.lines.end(),
                                              [this](const DrawnLine& line) { return line.symbol != m_key; });
    for (auto line = others; line != m_memory.lines.end(); ++line)
        m_lines.push_back({placed(line->line, m_candles), line->style});
    m_memory.lines.erase(others, m_memory.lines.end());
}

void ChartModel::setSelectedStyle(const ChartStyle& style) {
    const ChartObject& selected = m_state.selected;
    if (selected.kind == ChartObject::Kind::Line) {
        m_lines[selected.index].style = style;
        // The next line looks like the one that the user has styled last.
        m_memory.stylesOf(m_theme)[static_cast<std::size_t>(ChartPart::NewLine)] = style;
    } else if (selected.kind == ChartObject::Kind::Part)
        m_memory.stylesOf(m_theme)[selected.index] = style;
}

} // namespace Desk
