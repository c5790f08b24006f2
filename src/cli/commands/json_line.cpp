#include "cli/commands/json_line.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace cli {

namespace {

/// Characters that stand for themselves between quotes.
bool IsPlain(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return c >= 0x20 && c < 0x7F && c != '"' && c != '\\'; });
}

} // namespace

void JsonLine::Put(std::string_view key, std::string_view text) {
    if (!IsPlain(text))
        return PutPlain(key, nlohmann::json(text).dump());
    std::string quoted = "\"";
    quoted.append(text).append("\"");
    PutPlain(key, quoted);
}

void JsonLine::PutPlain(std::string_view key, std::string_view value) {
    text_.append(text_.size() == 1 ? "\"" : ",\"").append(key).append("\":").append(value);
}

} // namespace cli
