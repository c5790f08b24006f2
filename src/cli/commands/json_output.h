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

    void Add(const Json& item) { AddText(item.dump()); }
    /// An item that is JSON already.
    void AddText(std::string_view item) {
        run_.Print(any_ ? ",\n" : "[\n");
        run_.Print(item);
        any_ = true;
    }

private:
    Run& run_;
    bool any_ = false;
};

} // namespace cli
