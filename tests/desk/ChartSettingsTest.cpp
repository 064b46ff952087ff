#include "chart/ChartSettings.h"

#include <OrtinControls/GraphicsHelper.h>
#include <OrtinFoundation/Settings.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "DeskFonts.h"
#include "DeskSettings.h"
#include "StyleText.h"
#include "TemporaryFolder.h"
#include "chart/DrawnLinesForm.h"
#include "chart/StyleForm.h"

using namespace Desk;

namespace {

using std::chrono::sys_days;

constexpr auto NewLine = static_cast<std::size_t>(ChartPart::NewLine);
constexpr auto Labels = static_cast<std::size_t>(ChartPart::Labels);
constexpr auto EllipsePart = static_cast<std::size_t>(ChartPart::EllipseMarker);

std::string joined(const std::vector<std::string>& paths) {
    std::string text;
    for (const std::string& path : paths)
        text += (text.empty() ? "" : " ") + path;
    return text;
}

std::string stylesOf(const ChartMemory& chart) {
    std::string text;
    for (const ChartStyles& styles : chart.styles)
        for (const ChartStyle& style : styles)
            text += describe(style) + "\n";
    return text;
}

ChartStyle anyStyle() {
    return {};
}

/// What a chart is after `node` was read into a new one.
struct ReadChart {
    explicit ReadChart(const Settings& node) : unread(joined(readChart(node, chart))) {}
    ChartMemory chart;
    std::string unread;
};

/// Any values that the panel and the mouse can give.
class RandomCharts {
public:
    explicit RandomCharts(unsigned seed) : m_random(seed) {}

    ChartMemory next() {
        ChartMemory chart;
        for (ChartStyles& styles : chart.styles)
            for (std::size_t part = 0; part < ChartPartCount; ++part)
                change(styles[part], aspectsOf(static_cast<ChartPart>(part)));
        for (int line = below(5); line > 0; --line) {
            DrawnLine drawn{below(2) == 0 ? "AAPL" : "\xC5\xBB\"\\YWIEC \xF0\x9F\x93\x88",
                            {point(), point()},
                            chart.styles[0][NewLine]};
            change(drawn.style, aspectsOf(ChartPart::NewLine));
            chart.lines.push_back(drawn);
        }
        return chart;
    }

private:
    int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(m_random); }
    COLORREF color() { return RGB(below(256), below(256), below(256)); }
    double number() { return std::uniform_real_distribution(-1e6, 1e6)(m_random); }
    AnchoredPoint point() { return {sys_days(std::chrono::days(below(40000) - 10000)), number() / 1e5, number()}; }

    void change(ChartStyle& style, const StyleAspects& aspects) {
        if (aspects.line)
            style.pen.Color(color());
        if (aspects.width)
            style.pen.Width(1 + below(5));
        if (aspects.dash)
            style.pen.LineStyle(static_cast<unsigned int>(below(5)));
        if (aspects.fill)
            style.fill = color();
        if (aspects.font) {
            style.text = color();
            LOGFONTW font = deskFont(8 + below(20), below(2) == 0 ? FW_NORMAL : FW_BOLD);
            wcscpy(font.lfFaceName, below(2) == 0 ? L"Żółw Gęśl" : L"Arial");
            style.font.FromLOGFONT(font, 0);
        }
        if (aspects.opacity)
            style.opacity = (1 + below(100)) / 100.0;
    }

    std::mt19937 m_random;
};

Settings partNode(const char* part, const char* child, const std::string& text, std::uint32_t version = 0) {
    Settings node;
    Settings& leaf = node["white"][part][child];
    leaf = text;
    leaf.Version = version;
    return node;
}

std::string linesText(const std::string& symbol, const std::string& from, const std::string& rest) {
    return R"([{"symbol":)" + symbol + R"(,"from":)" + from + R"(,"to":{"date":"2015-02-03","place":1,"price":2})" +
           rest + "}]";
}
const std::string GoodPoint = R"({"date":"2015-01-02","place":0.25,"price":27.5})";

} // namespace

// Round trips

TEST(ChartSettings, GiveBackAnyStyleAndLine) {
    RandomCharts charts(20);
    for (int round = 0; round < 300; ++round) {
        const ChartMemory chart = charts.next();
        Settings node;
        writeChart(node, chart);
        Settings file;
        ASSERT_TRUE(file.LoadFromFileText(node.ToFileText(), L"x").IsSuccess());
        const ReadChart read(file);
        ASSERT_EQ(read.unread, "");
        ASSERT_EQ(stylesOf(read.chart), stylesOf(chart));
        ASSERT_EQ(read.chart.lines.size(), chart.lines.size());
        for (std::size_t line = 0; line < chart.lines.size(); ++line) {
            const DrawnLine& before = chart.lines[line];
            const DrawnLine& after = read.chart.lines[line];
            EXPECT_EQ(after.symbol, before.symbol);
            EXPECT_EQ(describe(after.style), describe(before.style));
            EXPECT_EQ(after.line.from.date, before.line.from.date);
            EXPECT_DOUBLE_EQ(after.line.from.places, before.line.from.places);
            EXPECT_DOUBLE_EQ(after.line.to.price, before.line.to.price);
        }
    }
}

TEST(ChartSettings, AreThePersistedFormsOfTheValues) {
    ChartMemory chart;
    chart.styles[0][EllipsePart].pen.FromDescription(PS_DASH, 3, RGB(255, 0, 0));
    chart.styles[0][EllipsePart].fill = RGB(1, 2, 3);
    chart.styles[0][EllipsePart].opacity = 0.3;
    chart.styles[0][Labels].font.FromLOGFONT(deskFont(12, FW_NORMAL), 0);
    Settings node;
    writeChart(node, chart);
    const Settings& written = node["white"]["ellipse-marker"];
    EXPECT_EQ(static_cast<const std::string&>(written["pen"]), "1 3 255");
    EXPECT_EQ(written["pen"].Version, 1u);
    EXPECT_EQ(static_cast<const std::string&>(written["fill"]), R"({"PenStyle":0,"PenClr":[1,2,3],"PenHatch":0})");
    EXPECT_EQ(static_cast<const std::string&>(written["opacity"]), "0.3");
    EXPECT_FALSE(written.HasChild("font"));
    // The height is the one at 96 pixels to the inch, whatever the screen's scale.
    EXPECT_EQ(static_cast<const std::string&>(node["white"]["labels"]["font"]),
              R"({"Name":"Tahoma","Params":[-12,0,0,0,400,0,0,0,1,0,0,4,0]})");
    EXPECT_EQ(static_cast<const std::string&>(node["lines"]), "[]");
}

TEST(ChartSettings, AFontIsReadAtTheScreensScale) {
    const ReadChart read(partNode("labels", "font", R"({"Name":"Arial","Params":[-11,0,0,0,700,0,0,0,1,0,0,0,0]})"));
    const double scale = GraphicsHelper::GetSystemScaleFactor();
    EXPECT_EQ(read.unread, "");
    EXPECT_EQ(read.chart.styles[0][Labels].font.GetHeight(), std::lround(-11 * scale));
    EXPECT_EQ(read.chart.styles[0][Labels].font.GetFaceName(), L"Arial");
}

TEST(ChartSettings, OfAPenTakeOnlyWhatCanBeSeenOfThePart) {
    // Of the grid colour and dashes, of candles the colour alone.
    const ReadChart grid(partNode("grid", "pen", "2 4 255", 1));
    EXPECT_EQ(grid.chart.styles[0][4].pen.LineStyle(), static_cast<unsigned int>(PS_DOT));
    EXPECT_EQ(grid.chart.styles[0][4].pen.Width(), 1);
    EXPECT_EQ(grid.chart.styles[0][4].pen.Color(), 255u);
    const ReadChart candles(partNode("rising-candles", "pen", "2 4 255", 1));
    EXPECT_EQ(candles.chart.styles[0][0].pen.LineStyle(), static_cast<unsigned int>(PS_SOLID));
    EXPECT_EQ(candles.chart.styles[0][0].pen.Color(), 255u);
}

// What cannot be read

TEST(ChartSettings, NothingIsNoDamage) {
    const ReadChart read{Settings()};
    EXPECT_EQ(read.unread, "");
    EXPECT_EQ(stylesOf(read.chart), stylesOf(ChartMemory()));
    EXPECT_TRUE(read.chart.lines.empty());
}

TEST(ChartSettings, ADamagedPieceKeepsItsDefaultAndIsNamed) {
    const std::string brush = R"({"PenStyle":0,"PenClr":)";
    const std::string font = R"({"Name":"Arial","Params":[)";
    const struct {
        const char* part;
        const char* child;
        std::string text;
        std::uint32_t version;
    } pieces[] = {
        {"new-line", "pen", "", 1},
        {"new-line", "pen", "0 2", 1},
        {"new-line", "pen", "0 2 255", 0},
        {"new-line", "pen", "0 2 255", 7},
        {"new-line", "pen", "5 2 255", 1},
        {"new-line", "pen", "0 0 255", 1},
        {"new-line", "pen", "0 6 255", 1},
        {"new-line", "pen", "0 -1 255", 1},
        {"new-line", "pen", "0 2 16777216", 1},
        {"new-line", "pen", "0 2 czerwony", 1},
        {"new-line", "pen", "0000", 0},
        {"volume", "fill", "", 0},
        {"volume", "fill", "null", 0},
        {"volume", "fill", "[]", 0},
        {"volume", "fill", "{}", 0},
        {"volume", "fill", brush + "[1,2,3]", 0},
        {"volume", "fill", brush + R"([1,2,3]})", 0},
        {"volume", "fill", brush + R"([1,2],"PenHatch":0})", 0},
        {"volume", "fill", brush + R"([1,2,3,4],"PenHatch":0})", 0},
        {"volume", "fill", brush + R"([1,2,256],"PenHatch":0})", 0},
        {"volume", "fill", brush + R"([-1,2,3],"PenHatch":0})", 0},
        {"volume", "fill", brush + R"([1,2.5,3],"PenHatch":0})", 0},
        {"volume", "fill", brush + R"(["1",2,3],"PenHatch":0})", 0},
        {"volume", "fill", R"({"PenStyle":"0","PenClr":[1,2,3],"PenHatch":0})", 0},
        {"labels", "text", R"({"PenClr":[1,2,3],"PenHatch":0})", 0},
        {"labels", "font", "null", 0},
        {"labels", "font", "7", 0},
        {"labels", "font", R"({"Name":"Arial"})", 0},
        {"labels", "font", R"({"Params":[-11,0,0,0,400,0,0,0,1,0,0,0,0]})", 0},
        {"labels", "font", R"({"Name":7,"Params":[-11,0,0,0,400,0,0,0,1,0,0,0,0]})", 0},
        {"labels", "font", font + "-11,0,0,0,400,0,0,0,1,0,0,0]}", 0},
        {"labels", "font", font + "-11,0,0,0,400,0,0,0,1,0,0,0,0,0]}", 0},
        {"labels", "font", font + "-11,0,0,0,400,0,0,0,1,0,0,0,0.5]}", 0},
        {"labels", "font", font + "0,0,0,0,400,0,0,0,1,0,0,0,0]}", 0},
        {"labels", "font", font + "-101,0,0,0,400,0,0,0,1,0,0,0,0]}", 0},
        {"labels", "font", font + "-9223372036854775808,0,0,0,400,0,0,0,1,0,0,0,0]}", 0},
        {"labels", "font", font + "-11,0,450,0,400,0,0,0,1,0,0,0,0]}", 0},
        {"labels", "font", font + "-11,0,0,0,-1,0,0,0,1,0,0,0,0]}", 0},
        {"labels", "font", R"({"Name":"12345678901234567890123456789012","Params":[-11,0,0,0,400,0,0,0,1,0,0,0,0]})",
         0},
        {"range", "opacity", "", 0},
        {"range", "opacity", "nan", 0},
        {"range", "opacity", "-0.1", 0},
        {"range", "opacity", "1.5", 0},
        {"range", "opacity", "inf", 0},
        {"range", "opacity", "0,5", 0},
    };
    for (const auto& piece : pieces) {
        Settings node = partNode(piece.part, piece.child, piece.text, piece.version);
        node["black"]["range"]["opacity"].SetDouble(0.25);
        const ReadChart read(node);
        EXPECT_EQ(read.unread, std::string("white/") + piece.part + "/" + piece.child) << piece.text;
        ChartMemory expected;
        expected.styles[1][static_cast<std::size_t>(ChartPart::Range)].opacity = 0.25;
        EXPECT_EQ(stylesOf(read.chart), stylesOf(expected)) << piece.text;
    }
}

TEST(ChartSettings, ADeepDocumentIsRefusedAndDoesNotCrash) {
    const std::string deep(100000, '[');
    for (const std::string& text : {deep, deep + std::string(100000, ']')}) {
        Settings node = partNode("volume", "fill", text);
        node["lines"] = text;
        EXPECT_EQ(ReadChart(node).unread, "white/volume/fill lines");
    }
}

TEST(ChartSettings, NamesThatTheDeskDoesNotKnowAreLeftAlone) {
    Settings node = partNode("unknown-part", "pen", "what", 3);
    node["violet"]["grid"]["pen"] = std::string("what");
    node["white"]["grid"]["font"] = std::string("what");
    EXPECT_EQ(ReadChart(node).unread, "");
    const Settings before = node;
    writeChart(node, ChartMemory());
    const Settings& after = node;
    EXPECT_TRUE(after["white"]["unknown-part"] == before["white"]["unknown-part"]);
    EXPECT_TRUE(after["violet"] == before["violet"]);
    EXPECT_EQ(static_cast<const std::string&>(after["white"]["grid"]["font"]), "what");
}

// Lines

TEST(ChartSettings, ADamagedLineIsLeftOutAndTheOthersStay) {
    const std::string good = R"({"symbol":"A","from":)" + GoodPoint + R"(,"to":)" + GoodPoint + "}";
    const char* bad[] = {"null",
                         "7",
                         "[]",
                         "{}",
                         R"({"symbol":"A"})",
                         R"({"symbol":7,"from":{},"to":{}})",
                         R"({"symbol":"A","from":{"date":"2015-02-30","place":0,"price":1},"to":{}})"};
    for (const char* text : bad) {
        Settings node;
        std::string document = "[";
        document.append(good).append(",").append(text).append(",").append(good).append("]");
        node["lines"] = document;
        const ReadChart read(node);
        EXPECT_EQ(read.unread, "lines/1") << text;
        EXPECT_EQ(read.chart.lines.size(), 2u) << text;
    }
}

TEST(ChartSettings, OfALineEachPieceIsLookedAt) {
    ASSERT_EQ(DrawnLinesForm::read(linesText("\"A\"", GoodPoint, ""), anyStyle()).lines.size(), 1u);
    const std::string points[] = {R"({"place":0,"price":1})",
                                  R"({"date":20150102,"place":0,"price":1})",
                                  R"({"date":"2015-1-2","place":0,"price":1})",
                                  R"({"date":"2015-01-02","price":1})",
                                  R"({"date":"2015-01-02","place":"0","price":1})",
                                  R"({"date":"2015-01-02","place":0,"price":null})",
                                  R"({"date":"2015-01-02","place":0,"price":1e999})",
                                  "7"};
    for (const std::string& point : points)
        EXPECT_TRUE(DrawnLinesForm::read(linesText("\"A\"", point, ""), anyStyle()).lines.empty()) << point;
    EXPECT_TRUE(DrawnLinesForm::read(linesText("\"\"", GoodPoint, ""), anyStyle()).lines.empty());
}

TEST(ChartSettings, ALineWithADamagedStyleKeepsThatOfNewLines) {
    ChartMemory fresh;
    const ChartStyle& first = fresh.styles[0][NewLine];
    const struct {
        const char* style;
        const char* unread;
        double opacity;
    } cases[] = {{"7", "/0/style", 1},
                 {R"({"pen":"0 2"})", "/0/style/pen", 1},
                 {R"({"pen":7,"opacity":0.5})", "/0/style/pen", 0.5},
                 {R"({"opacity":2})", "/0/style/opacity", 1},
                 {R"({"opacity":"1"})", "/0/style/opacity", 1},
                 {"{}", "", 1}};
    for (const auto& each : cases) {
        const DrawnLinesForm::Read read =
            DrawnLinesForm::read(linesText("\"A\"", GoodPoint, std::string(R"(,"style":)") + each.style), first);
        EXPECT_EQ(joined(read.unread), each.unread) << each.style;
        ASSERT_EQ(read.lines.size(), 1u) << each.style;
        ChartStyle expected = first;
        expected.opacity = each.opacity;
        EXPECT_EQ(describe(read.lines[0].style), describe(expected)) << each.style;
    }
}

TEST(ChartSettings, ThousandsOfLinesAreKept) {
    ChartMemory chart;
    const AnchoredPoint point{sys_days(std::chrono::days(16000)), 0.5, 10};
    for (int line = 0; line < 5000; ++line)
        chart.lines.push_back({"S" + std::to_string(line), {point, point}, chart.styles[0][NewLine]});
    Settings node;
    writeChart(node, chart);
    const ReadChart read(node);
    EXPECT_EQ(read.unread, "");
    ASSERT_EQ(read.chart.lines.size(), 5000u);
    EXPECT_EQ(read.chart.lines[4999].symbol, "S4999");
}

TEST(ChartSettings, ALineThatCannotBeWrittenDoesNotSpoilTheOthers) {
    const AnchoredPoint good{sys_days(std::chrono::days(16000)), 0.5, 10};
    const auto withPoint = [&](const AnchoredPoint& point) {
        return DrawnLine{"A", {good, point}, ChartMemory().styles[0][NewLine]};
    };
    constexpr double Nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double Infinite = std::numeric_limits<double>::infinity();
    std::vector<DrawnLine> lines{withPoint({good.date, Nan, 1}), withPoint({good.date, 1, Infinite}),
                                 withPoint({sys_days(std::chrono::days(5000000)), 1, 1}), withPoint(good)};
    lines.push_back(withPoint(good));
    lines.back().symbol = "\xFF";
    const DrawnLinesForm::Read read = DrawnLinesForm::read(DrawnLinesForm::textOf(lines), anyStyle());
    EXPECT_TRUE(read.unread.empty());
    EXPECT_EQ(read.lines.size(), 1u);
}

TEST(ChartSettings, LinesThatCouldNotBeReadAreMovedAsideAndNotLost) {
    Settings node;
    node["lines"] = std::string("[{\"symbol\":");
    ReadChart read(node);
    EXPECT_EQ(read.unread, "lines");
    writeChart(node, read.chart);
    const Settings& written = node;
    EXPECT_EQ(static_cast<const std::string&>(written["unread-lines"]), "[{\"symbol\":");
    EXPECT_EQ(static_cast<const std::string&>(written["lines"]), "[]");
    writeChart(node, read.chart);
    EXPECT_EQ(static_cast<const std::string&>(written["unread-lines"]), "[{\"symbol\":");
}

TEST(ChartSettings, NoTextMakesAReaderThrow) {
    std::mt19937 random(7);
    const std::string forms[] = {R"({"PenStyle":0,"PenClr":[1,2,3],"PenHatch":0})",
                                 R"({"Name":"Arial","Params":[-11,0,0,0,400,0,0,0,1,0,0,0,0]})", "0 2 255",
                                 linesText("\"A\"", GoodPoint, R"(,"style":{"pen":"0 2 255","opacity":1})")};
    const std::string bytes = "[]{}\",:0123456789-+.eE\\/ntfu\xFF\xC5\x01 ";
    int whole = 0;
    for (int round = 0; round < 20000; ++round) {
        std::string text = forms[random() % std::size(forms)];
        for (unsigned change = random() % 3; change > 0; --change)
            text[random() % text.size()] = bytes[random() % bytes.size()];
        if (random() % 4 == 0)
            text.resize(random() % text.size());
        const auto version = static_cast<unsigned int>(random() % 3);
        EXPECT_NO_THROW({
            whole += StyleForm::penFrom(text, version) ? 1 : 0;
            whole += StyleForm::colorFrom(text) ? 1 : 0;
            whole += StyleForm::fontFrom(text) ? 1 : 0;
            whole += DrawnLinesForm::read(text, anyStyle()).lines.empty() ? 0 : 1;
        }) << text;
    }
    EXPECT_GT(whole, 1000);
}

// The file

TEST(ChartSettings, StandInTheDesksFileBesideTheRest) {
    TemporaryFolder folder;
    const std::wstring file = folder.write(L"s.txt", "OrtinSettings 1\n/printing/paper=A4\n").wstring();
    DeskSettings settings;
    settings.chart.stylesOf(DeskTheme::Black)[EllipsePart].opacity = 0.9;
    ASSERT_TRUE(saveSettings(file, settings).IsSuccess());
    EXPECT_NE(bytesOf(file).find("/printing/paper=A4\n"), std::string::npos);
    EXPECT_NE(bytesOf(file).find("/chart/black/ellipse-marker/opacity=0.9\n"), std::string::npos);
    DeskSettings read;
    std::wstring remark;
    ASSERT_TRUE(loadSettings(file, read, &remark).IsSuccess());
    EXPECT_EQ(remark, L"");
    EXPECT_EQ(read.chart.stylesOf(DeskTheme::Black)[EllipsePart].opacity, 0.9);
}

TEST(ChartSettings, OneLineNamesWhatWasNotReadAndTheRestOfTheFileIsTaken) {
    TemporaryFolder folder;
    const std::wstring file = folder
                                  .write(L"s.txt", "OrtinSettings 1\n/theme=black\n/chart/white/grid/pen#1=x\n"
                                                   "/chart/black/range/opacity=7\n/chart/lines=[1,2,3]\n")
                                  .wstring();
    DeskSettings settings;
    std::wstring remark;
    EXPECT_TRUE(loadSettings(file, settings, &remark).IsSuccess());
    EXPECT_EQ(settings.theme, DeskTheme::Black);
    EXPECT_EQ(remark, file + L": nie odczytano ustawień wykresu: white/grid/pen, black/range/opacity, lines/0 i "
                             L"jeszcze 2; zamiast nich są domyślne");
}
