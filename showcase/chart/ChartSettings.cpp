#include "ChartSettings.h"

#include <OrtinControls/GdiTools.h>
#include <OrtinFoundation/Settings.h>

#include <cmath>
#include <utility>

#include "chart/DrawnLinesForm.h"
#include "chart/StyleForm.h"

namespace Desk {

namespace {

constexpr std::array<const char*, 2> ThemeNodes{"white", "black"};
constexpr std::array<const char*, ChartPartCount> PartNodes{"rising-candles", "falling-candles", "volume", "average",
                                                            "grid",           "labels",          "range",  "arc-marker",
                                                            "ellipse-marker", "new-line"};
constexpr char PenNode[] = "pen";
constexpr char FillNode[] = "fill";
constexpr char TextNode[] = "text";
constexpr char FontNode[] = "font";
constexpr char OpacityNode[] = "opacity";
constexpr char LinesNode[] = "lines";
constexpr char UnreadLinesNode[] = "unread-lines";

constexpr auto NewLine = static_cast<std::size_t>(ChartPart::NewLine);

bool hasPen(const StyleAspects& aspects) {
    return aspects.line || aspects.width || aspects.dash;
}

/// Reads the children of a part's node.
class PartReader {
public:
    PartReader(const Settings& node, std::string path, std::vector<std::string>& unread)
        : m_node(node),
          m_path(std::move(path)),
          m_unread(unread) {}

    /// `take` gets the child, if there is one, and says whether it could be read.
    template <class Take>
    void read(const char* name, const Take& take) {
        if (m_node.HasChild(name) && !take(m_node[name]))
            m_unread.push_back(m_path + '/' + name);
    }

private:
    const Settings& m_node;
    std::string m_path;
    std::vector<std::string>& m_unread;
};

bool takeColor(const Settings& node, COLORREF& color) {
    const std::optional<COLORREF> read = StyleForm::colorFrom(static_cast<const std::string&>(node));
    color = read.value_or(color);
    return read.has_value();
}

void readStyle(PartReader reader, const StyleAspects& aspects, ChartStyle& style) {
    if (hasPen(aspects))
        reader.read(PenNode, [&](const Settings& node) {
            const auto pen = StyleForm::penFrom(static_cast<const std::string&>(node), node.Version);
            // What nobody can see of the pen stays as it is drawn.
            if (pen)
                GdiTools::UpdatePen(!aspects.dash, !aspects.line, !aspects.width, *pen, style.pen);
            return pen.has_value();
        });
    if (aspects.fill)
        reader.read(FillNode, [&](const Settings& node) { return takeColor(node, style.fill); });
    if (aspects.font) {
        reader.read(TextNode, [&](const Settings& node) { return takeColor(node, style.text); });
        reader.read(FontNode, [&](const Settings& node) {
            const auto font = StyleForm::fontFrom(static_cast<const std::string&>(node));
            if (font)
                style.font = *font;
            return font.has_value();
        });
    }
    if (aspects.opacity)
        reader.read(OpacityNode, [&](const Settings& node) {
            const double opacity = node.GetDouble(NAN);
            if (StyleForm::isOpacity(opacity))
                style.opacity = opacity;
            return StyleForm::isOpacity(opacity);
        });
}

void writeStyle(Settings& node, const StyleAspects& aspects, const ChartStyle& style) {
    if (hasPen(aspects))
        style.pen.Serialize(node[PenNode]);
    if (aspects.fill)
        node[FillNode] = StyleForm::brushTextOf(style.fill);
    if (aspects.font) {
        node[TextNode] = StyleForm::brushTextOf(style.text);
        node[FontNode] = StyleForm::textOf(style.font);
    }
    if (aspects.opacity)
        node[OpacityNode].SetDouble(style.opacity);
}

} // namespace

std::vector<std::string> readChart(const Settings& node, ChartMemory& chart) {
    std::vector<std::string> unread;
    for (std::size_t theme = 0; theme < ThemeNodes.size(); ++theme)
        for (std::size_t part = 0; part < ChartPartCount; ++part)
            readStyle(PartReader(node[ThemeNodes[theme]][PartNodes[part]],
                                 std::string(ThemeNodes[theme]) + '/' + PartNodes[part], unread),
                      aspectsOf(static_cast<ChartPart>(part)), chart.styles[theme][part]);
    if (node.HasChild(LinesNode)) {
        const std::string& text = node[LinesNode];
        DrawnLinesForm::Read read = DrawnLinesForm::read(text, chart.styles[0][NewLine]);
        chart.lines = std::move(read.lines);
        for (const std::string& path : read.unread)
            unread.push_back(LinesNode + path);
    }
    return unread;
}

void writeChart(Settings& node, const ChartMemory& chart) {
    for (std::size_t theme = 0; theme < ThemeNodes.size(); ++theme)
        for (std::size_t part = 0; part < ChartPartCount; ++part)
            writeStyle(node[ThemeNodes[theme]][PartNodes[part]], aspectsOf(static_cast<ChartPart>(part)),
                       chart.styles[theme][part]);
    Settings& lines = node[LinesNode];
    if (lines.HasText()) {
        const std::string& before = lines;
        if (!DrawnLinesForm::read(before, chart.styles[0][NewLine]).unread.empty())
            node[UnreadLinesNode] = before;
    }
    lines = DrawnLinesForm::textOf(chart.lines);
}

} // namespace Desk
