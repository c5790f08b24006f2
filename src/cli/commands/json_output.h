#pragma once

#include "base/utf8.h"
#include "cli/run.h"

#include <nlohmann/json.hpp>

namespace cli {

/// JSON whose keys keep the order in which they were put.
using Json = nlohmann::ordered_json;

/// Writes a JSON array item by item, a line each, so that none but the one at hand is in memory.
class JsonArray {
public:
    explicit JsonArray(Run& run) : run_(run) {}
    JsonArray(const JsonArray&) = delete;
    JsonArray& operator=(const JsonArray&) = delete;
    ~JsonArray() { run_.Print(any_ ? "\n]\n" : "[]\n"); }

    void Add(const Json& item) {
        run_.Print((any_ ? ",\n" : "[\n") + item.dump());
        any_ = true;
    }

private:
    Run& run_;
    bool any_ = false;
};

} // namespace cli
