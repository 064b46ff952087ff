#include <gtest/gtest.h>

#include <map>

#include <boost/json.hpp>
#include <gsl/narrow>

#include <OrtinControls/GdiBrushWrapper.h>
#include <OrtinControls/GdiFontWrapper.h>
#include <OrtinControls/GdiPenWrapper.h>
#include <OrtinFoundation/Settings.h>

#include "../graphics_core/RandomDocuments.h"
#include "support/Resources.h"

namespace {

constexpr int kRounds = 50000;

using Outcomes = std::map<std::string, int>;

template <class Read>
std::string outcomeOf(Read read) {
    try {
        return read() ? "true" : "false";
    } catch (const std::invalid_argument& error) {
        return error.what();
    } catch (const std::out_of_range&) {
        return "out of range";
    } catch (const gsl::narrowing_error&) {
        return "narrowing error";
    }
}

std::string namesOf(const Outcomes& outcomes) {
    std::string names;
    for (const auto& [name, count] : outcomes) {
        names += name + "; ";
    }
    return names;
}

} // namespace

TEST(RandomDocument, IsReadOrRefusedAsPromised) {
    RandomDocuments documents(4);
    Outcomes brushes;
    Outcomes fonts;
    GdiBrushWrapper brush;
    GdiFontWrapper font;
    brush.GetHBRUSH();
    const std::size_t before = support::gdiHandleCount();
    for (int round = 0; round < kRounds; ++round) {
        const boost::json::value document = documents.next();
        ++brushes[outcomeOf([&] { return brush.FromJson(document); })];
        ++fonts[outcomeOf([&] { return font.FromJson(document); })];
    }
    EXPECT_EQ("array required; false; not an int64; not an object; out of range; ", namesOf(brushes));
    EXPECT_EQ("array required; false; not a string; not an int64; not an object; out of range; true; ", namesOf(fonts));
    EXPECT_GT(fonts["true"], kRounds / 10);
    EXPECT_EQ(before, support::gdiHandleCount());
}

TEST(RandomSettings, AreReadOrRefusedInSilenceButForHeights) {
    RandomDocuments documents(41);
    Outcomes pens;
    Outcomes fonts;
    GdiPenWrapper pen;
    for (int round = 0; round < kRounds; ++round) {
        Settings settings;
        settings.Version = documents.below(4);
        GdiFontWrapper font(LOGFONTW{}, 0);
        if (settings.Version == 0) {
            settings = documents.nextHexText(documents.below(2) == 0 ? sizeof(LOGPEN) : sizeof(LOGFONTW));
        } else {
            settings = documents.nextText();
            settings["Params"] = documents.nextText();
            settings["Name"] = documents.nextText();
        }
        ++pens[outcomeOf([&] {
            pen.Unserialize(settings);
            return true;
        })];
        ++fonts[outcomeOf([&] {
            font.Unserialize(settings);
            return true;
        })];
    }
    EXPECT_EQ("true; ", namesOf(pens));
    EXPECT_TRUE(namesOf(fonts) == "true; " || namesOf(fonts) == "narrowing error; true; ") << namesOf(fonts);
}
