#include "interactions/tool_host.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <numbers>

namespace interactions {

void Play(const Script& script, ToolHost& host) {
    for (const Words& line : script.setup)
        host.SetUp(line);
    for (const Event& event : script.events) {
        SCOPED_TRACE(script.name + ".txt:" + std::to_string(event.line) + ": " + script.caption);
        const Outcome outcome = host.Perform(event);
        const bool silent = event.error.size() > 1 && event.error[1] == "silent";
        EXPECT_EQ(outcome.error, silent && !host.SeesSilentErrors() ? Words{} : event.error);
        if (event.state) {
            EXPECT_EQ(outcome.state, *event.state);
        }
        std::vector<std::string> expected = event.accesses;
        std::erase_if(expected, [&](const std::string& access) { return !host.Sees(access); });
        EXPECT_EQ(host.TakeAccesses(), expected);
    }
}

std::string PlaceText(long x, long y, double angle) {
    return std::to_string(x) + " " + std::to_string(y) + " " + DegreesText(angle);
}

std::string DegreesText(double angle) {
    const double degrees = std::round(angle * 180 / std::numbers::pi * 1e9) / 1e9;
    char text[40];
    std::snprintf(text, sizeof text, "%.12g", degrees + 0.0);
    return text;
}

} // namespace interactions
