#include <gtest/gtest.h>

#include <boost/json/parse.hpp>
#include <boost/json/serialize.hpp>

#include "BrushForm.h"
#include "Descriptions.h"

namespace {

constexpr BrushDescription kBefore{7, 0x00112233, 9};

struct Outcome {
    std::string what;
    BrushDescription brush;
};

Outcome read(const boost::json::value& json) {
    Outcome outcome{"", kBefore};
    try {
        outcome.what = BrushForm::fromJson(json, outcome.brush) ? "true" : "false";
    } catch (const std::invalid_argument& error) {
        outcome.what = std::string("invalid argument: ") + error.what();
    } catch (const std::out_of_range&) {
        outcome.what = "out of range";
    }
    return outcome;
}

} // namespace

TEST(BrushJson, NamesItsMembersAfterAPen) {
    const boost::json::value form = BrushForm::toJson(BrushDescription{0, 0x0000FF, 0});
    EXPECT_EQ(R"({"PenStyle":0,"PenClr":[255,0,0],"PenHatch":0})", boost::json::serialize(form));
    const boost::json::object& members = form.as_object();
    EXPECT_EQ(boost::json::kind::uint64, members.at("PenStyle").kind());
    EXPECT_EQ(boost::json::kind::uint64, members.at("PenHatch").kind());
    for (const boost::json::value& component : members.at("PenClr").as_array()) {
        EXPECT_EQ(boost::json::kind::uint64, component.kind());
    }
}

TEST(BrushJson, WritesRedFirstAndAllBitsOfTheHatch) {
    EXPECT_EQ(R"({"PenStyle":4294967295,"PenClr":[1,2,3],"PenHatch":18446744073709551615})",
              boost::json::serialize(BrushForm::toJson(BrushDescription{0xFFFFFFFF, 0xAA030201, 0xFFFFFFFFFFFFFFFF})));
}

TEST(BrushJson, IsNeverReadToItsEnd) {
    struct Case {
        const char* what;
        const char* text;
        Outcome outcome;
    };
    const std::string noInt64 = "invalid argument: not an int64";
    const std::string noArray = "invalid argument: array required";
    const Case cases[] = {
        {"null changes nothing", "null", {"false", kBefore}},
        {"a number", "1", {"invalid argument: not an object", kBefore}},
        {"an array", "[]", {"invalid argument: not an object", kBefore}},
        {"no members", "{}", {"out of range", kBefore}},
        {"well-formed", R"({"PenStyle":1,"PenClr":[1,2,3],"PenHatch":4})", {noInt64, {1, 0x030201, 9}}},
        {"without a hatch", R"({"PenStyle":1,"PenClr":[1,2,3]})", {noInt64, {1, 0x030201, 9}}},
        {"in another order", R"({"PenClr":[1,2,3],"PenStyle":1})", {noInt64, {1, 0x030201, 9}}},
        {"a style that is a text", R"({"PenStyle":"1","PenClr":[1,2,3]})", {noInt64, kBefore}},
        {"a style with a fraction", R"({"PenStyle":1.0,"PenClr":[1,2,3]})", {noInt64, kBefore}},
        {"a style beyond int64", R"({"PenStyle":9223372036854775808,"PenClr":[1,2,3]})", {noInt64, kBefore}},
        {"a style of 33 bits", R"({"PenStyle":4294967297,"PenClr":[1,2,3]})", {noInt64, {1, 0x030201, 9}}},
        {"a negative style", R"({"PenStyle":-1,"PenClr":[1,2,3]})", {noInt64, {0xFFFFFFFF, 0x030201, 9}}},
        {"no colour", R"({"PenStyle":1})", {"out of range", {1, 0x112233, 9}}},
        {"a colour that is a number", R"({"PenStyle":1,"PenClr":5})", {noArray, {1, 0x112233, 9}}},
        {"no components", R"({"PenStyle":1,"PenClr":[]})", {"out of range", {1, 0x112233, 9}}},
        {"two components", R"({"PenStyle":1,"PenClr":[1,2]})", {"out of range", {1, 0x112233, 9}}},
        {"four components", R"({"PenStyle":1,"PenClr":[1,2,3,"x"]})", {noInt64, {1, 0x030201, 9}}},
        {"a component that is null", R"({"PenStyle":1,"PenClr":[1,2,null]})", {noInt64, {1, 0x112233, 9}}},
        {"red is cut to a byte", R"({"PenStyle":1,"PenClr":[257,0,0]})", {noInt64, {1, 0x000001, 9}}},
        {"green carries", R"({"PenStyle":1,"PenClr":[0,257,0]})", {noInt64, {1, 0x010100, 9}}},
        {"blue carries", R"({"PenStyle":1,"PenClr":[0,0,257]})", {noInt64, {1, 0x01010000, 9}}},
        {"negative components", R"({"PenStyle":1,"PenClr":[-1,-1,0]})", {noInt64, {1, 0xFFFFFFFF, 9}}},
    };
    for (const Case& c : cases) {
        const Outcome outcome = read(boost::json::parse(c.text));
        EXPECT_EQ(c.outcome.what, outcome.what) << c.what;
        EXPECT_EQ(c.outcome.brush, outcome.brush) << c.what << ", colour " << std::hex << outcome.brush.lbColor;
    }
}

TEST(BrushJson, FailsEarlierIfItIsReadWithoutATextBetween) {
    const Outcome outcome = read(BrushForm::toJson(BrushDescription{1, 0x030201, 4}));
    EXPECT_EQ("invalid argument: not an int64", outcome.what);
    EXPECT_EQ(kBefore, outcome.brush) << "its numbers are of another kind, the style's too";
}
