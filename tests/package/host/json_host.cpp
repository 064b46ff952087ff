// A host that keeps value objects in JSON: it brings Boost's headers, and Boost.JSON itself comes with the package.
#include <OrtinControls/OrtinControls.h>
#include <boost/json.hpp>
#include <cstdio>

int main() {
    LOGFONTW description{};
    description.lfWeight = FW_BOLD;
    const GdiFontWrapper font(description, 0);
    GdiFontWrapper read(boost::json::parse(boost::json::serialize(font.ToJson())), 0);
    bool refused = false;
    try {
        read.FromJson(boost::json::parse("[]"));
    } catch (const std::invalid_argument&) {
        refused = true;
    }
    return std::printf("font %s, a list %s\n", read == font ? "came back" : "changed", refused ? "refused" : "taken") <
           0;
}
