// What nobody would write, again and again.
#include <gtest/gtest.h>

#include <map>

#include "BrushForm.h"
#include "Descriptions.h"
#include "FontForm.h"
#include "RandomDocuments.h"

namespace {

constexpr int kRounds = 500'000;

} // namespace

/// Nothing but the promised exceptions, with their words.
TEST(RandomDocument, GivesNothingButThePromisedOutcomes) {
    RandomDocuments documents(500);
    std::map<std::string, int> brushes;
    std::map<std::string, int> fonts;
    const auto outcomeOf = [](const auto& read) -> std::string {
        try {
            return read();
        } catch (const std::invalid_argument& error) {
            return error.what();
        } catch (const std::out_of_range&) {
            return "out of range";
        }
    };
    for (int round = 0; round < kRounds; ++round) {
        const boost::json::value document = documents.next();
        BrushDescription brush{};
        ++brushes[outcomeOf([&] { return BrushForm::fromJson(document, brush) ? "true" : "false"; })];
        if (!document.is_object() || !document.as_object().contains("Params") ||
            !document.as_object().at("Params").is_array()) {
            continue;
        }
        const boost::json::array& parameters = document.as_object().at("Params").as_array();
        if (parameters.size() == FontForm::parameterCount) {
            FontDescription font{};
            ++fonts[outcomeOf([&] {
                FontForm::fromJson(parameters, 1.25, font);
                return "read";
            })];
        }
    }
    for (const auto& [outcome, count] : brushes) {
        EXPECT_TRUE(outcome == "false" || outcome == "not an object" || outcome == "array required" ||
                    outcome == "not an int64" || outcome == "out of range")
            << outcome;
    }
    EXPECT_EQ(5U, brushes.size()) << "each outcome was there";
    EXPECT_EQ(2U, fonts.size());
    EXPECT_GT(fonts["read"], kRounds / 5);
    EXPECT_GT(fonts["not an int64"], kRounds / 50);
}

TEST(RandomText, IsReadAsAFontOrRefusedWithoutHarm) {
    RandomDocuments documents(13);
    int complete = 0;
    for (int round = 0; round < kRounds; ++round) {
        FontDescription font{};
        const std::string text = documents.nextText();
        if (FontForm::fromText(text, font)) {
            ++complete;
            FontDescription again{};
            ASSERT_TRUE(FontForm::fromText(FontForm::toText(font), again));
            ASSERT_EQ(font, again) << text;
        }
    }
    EXPECT_GT(complete, kRounds / 500);
}
