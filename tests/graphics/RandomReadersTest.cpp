// What nobody would write, again and again, into all readers: each ends, and leaves its object, as a plain reading of
// the same document does.
#include <gtest/gtest.h>

#include <boost/json.hpp>
#include <gsl/narrow>

#include <cstring>
#include <map>

#include <OrtinControls/GdiBrushWrapper.h>
#include <OrtinControls/GdiFontWrapper.h>
#include <OrtinControls/GdiPenWrapper.h>
#include <OrtinFoundation/Settings.h>

#include "../graphics_core/RandomDocuments.h"
#include "GdiDescriptions.h"
#include "PlainReaders.h"
#include "PretendedScale.h"
#include "support/Resources.h"

namespace {

constexpr int kRounds = 500'000;

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

template <class Description>
bool sameBytes(const Description& left, const Description& right) {
    return std::memcmp(&left, &right, sizeof left) == 0;
}

/// The three members of a brush that is asked for them; its hatch is the one thing that no document changes.
LOGBRUSH descriptionOf(const GdiBrushWrapper& brush) {
    const boost::json::value form = brush.ToJson();
    const boost::json::array& components = form.at("PenClr").as_array();
    return {static_cast<UINT>(form.at("PenStyle").as_uint64()),
            RGB(components[0].as_uint64(), components[1].as_uint64(), components[2].as_uint64()),
            static_cast<ULONG_PTR>(form.at("PenHatch").as_uint64())};
}

/// Of a random version, with texts for each of them.
Settings randomSettings(RandomDocuments& documents) {
    Settings settings;
    settings.Version = documents.below(4);
    if (settings.Version == 0) {
        settings = documents.nextHexText(documents.below(2) == 0 ? sizeof(LOGPEN) : sizeof(LOGFONTW));
    } else {
        settings = documents.nextText();
        settings["Params"] = documents.nextText();
        settings["Name"] = documents.nextText();
    }
    return settings;
}

} // namespace

TEST(RandomDocument, IsReadByABrushAsPlainly) {
    RandomDocuments documents(4);
    Outcomes outcomes;
    GdiBrushWrapper brush;
    const HBRUSH handle = brush.GetHBRUSH();
    LOGBRUSH plain{};
    for (int round = 0; round < kRounds; ++round) {
        const boost::json::value document = documents.next();
        const std::string outcome = outcomeOf([&] { return brush.FromJson(document); });
        ++outcomes[outcome];
        ASSERT_EQ(PlainReaders::readBrush(document, plain), outcome) << boost::json::serialize(document);
        LOGBRUSH visible = plain;
        visible.lbColor &= 0xFFFFFF; // what a brush writes of its colour
        ASSERT_TRUE(sameBytes(visible, descriptionOf(brush))) << boost::json::serialize(document);
        ASSERT_EQ(handle, brush.GetHBRUSH());
    }
    EXPECT_EQ("array required; false; not an int64; not an object; out of range; ", namesOf(outcomes));
}

TEST(RandomDocument, IsReadByAFontAsPlainly) {
    RandomDocuments documents(5);
    Outcomes outcomes;
    GdiFontWrapper font(tahoma(), 0);
    LOGFONTW plain = tahoma();
    const std::size_t before = support::gdiHandleCount();
    for (int round = 0; round < kRounds; ++round) {
        const boost::json::value document = documents.next();
        const std::string outcome = outcomeOf([&] { return font.FromJson(document); });
        ++outcomes[outcome];
        ASSERT_EQ(PlainReaders::readFont(document, plain), outcome) << boost::json::serialize(document);
        ASSERT_TRUE(sameBytes(plain, font.GetLOGFONT())) << boost::json::serialize(document) << describe(font);
    }
    EXPECT_EQ("array required; false; not a string; not an int64; not an object; out of range; true; ",
              namesOf(outcomes));
    EXPECT_GT(outcomes["true"], kRounds / 10);
    EXPECT_EQ(before, support::gdiHandleCount());
}

TEST(RandomSettings, AreReadByAPenAsPlainly) {
    RandomDocuments documents(41);
    int complete = 0;
    for (int round = 0; round < kRounds; ++round) {
        const Settings settings = randomSettings(documents);
        LOGPEN plain{PS_DASH, {5, 6}, RGB(7, 8, 9)};
        GdiPenWrapper pen;
        pen.FromLOGPEN(plain);
        const HPEN handle = pen.GetHPEN();
        pen.Unserialize(settings);
        const bool isRead = PlainReaders::readPen(settings, plain) == "true";
        ASSERT_TRUE(sameBytes(plain, pen.GetLOGPEN())) << settings.ToFileText() << describe(pen);
        ASSERT_EQ(isRead, !isAlive(handle)) << settings.ToFileText();
        complete += isRead ? 1 : 0;
    }
    EXPECT_GT(complete, kRounds / 10);
}

TEST(RandomSettings, AreReadByAFontAsPlainly) {
    RandomDocuments documents(42);
    Outcomes outcomes;
    for (int round = 0; round < kRounds; ++round) {
        const Settings settings = randomSettings(documents);
        LOGFONTW plain = tahoma(); // anew, for the height grows with each reading
        GdiFontWrapper font(plain, 0);
        const std::string outcome = outcomeOf([&] {
            font.Unserialize(settings);
            return true;
        });
        ++outcomes[outcome];
        ASSERT_EQ(PlainReaders::readFont(settings, plain), outcome) << settings.ToFileText();
        ASSERT_TRUE(sameBytes(plain, font.GetLOGFONT())) << settings.ToFileText() << describe(font);
    }
    EXPECT_EQ(pretendedScale() > 1.0 ? "narrowing error; true; " : "true; ", namesOf(outcomes));
}
