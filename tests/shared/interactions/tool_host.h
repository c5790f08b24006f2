#pragma once

#include "interactions/interaction_script.h"

#include <string>
#include <vector>

namespace interactions {

/// What an event led to.
struct Outcome {
    std::string state; ///< the answer or the tool's state
    Words error;       ///< number and way, as in the script
};

/// A host with one tool and one surface, on which a script is played.
class ToolHost {
public:
    virtual ~ToolHost() = default;

    virtual void SetUp(const Words& line) = 0;
    /// event.error tells whether a box will come up that has to be answered.
    virtual Outcome Perform(const Event& event) = 0;
    /// The accesses since the last time, in the words of the scripts.
    virtual std::vector<std::string> TakeAccesses() = 0;
    /// Whether this host sees accesses of this kind.
    virtual bool Sees(const std::string& access) const = 0;
    virtual bool SeesSilentErrors() const = 0;
};

/// Plays a script; every difference is a failure of the running test that names the line.
void Play(const Script& script, ToolHost& host);

/// "300 400 90": a place and an angle in radians, told in degrees with up to nine decimals.
std::string PlaceText(long x, long y, double angle);
std::string DegreesText(double angle);

} // namespace interactions
