// What a font costs that the cache knows.
#include "Scenario.h"

#include <OrtinControls/GdiFontWrapper.h>

namespace {

constexpr double kMicrosecondsInASecond = 1e6;

LOGFONTW fontOfHeight(LONG height) {
    LOGFONTW description = GdiFontWrapper().GetLOGFONT();
    description.lfHeight = height;
    return description;
}

void measureFonts(bench::Results& results) {
    constexpr LONG kOtherFonts = 200;
    for (LONG height = 1; height <= kOtherFonts; ++height) {
        GdiFontWrapper other(fontOfHeight(height), 0);
        other.GetHFONT();
    }
    const LOGFONTW description = fontOfHeight(-11);
    GdiFontWrapper font(description, 0);
    volatile HFONT sink = nullptr;
    const bench::Result known = bench::measure({.what = "GetHFONT of a known font",
                                                .ours = {.run =
                                                             [&] {
                                                                 font.FromLOGFONT(description, 0);
                                                                 sink = font.GetHFONT();
                                                             }},
                                                .peer = bench::Runner{.run = [&] {
                                                    sink = ::CreateFontIndirectW(&description);
                                                    ::DeleteObject(sink);
                                                }}});
    results.record({.what = "GetHFONT of a known font among 200 (peer: a font of its own)",
                    .ours = known.ours * kMicrosecondsInASecond,
                    .unit = "microseconds",
                    .goal = 1,
                    .peer = known.peer.value_or(0) * kMicrosecondsInASecond});
}

const bench::Registered fontScenario{{"fonts", measureFonts}};

} // namespace
