#pragma once

#include <concepts>
#include <string>
#include <string_view>

namespace cli {

/// A JSON object written key by key on one line: a catalogue has many of them, and none needs a tree of values.
class JsonLine {
public:
    void Put(std::string_view key, std::string_view text);
    void Put(std::string_view key, std::integral auto number) { PutPlain(key, std::to_string(number)); }
    void Put(std::string_view key, const JsonLine& object) { PutPlain(key, object.Text()); }

    std::string Text() const { return text_ + '}'; }

private:
    void PutPlain(std::string_view key, std::string_view value);

    std::string text_ = "{";
};

} // namespace cli
