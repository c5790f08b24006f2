#include "golden/host.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace golden {

namespace {

Lines OutputsOf(Host& host, const Step& step) {
    Lines outputs;
    for (const std::string& output : host.Do(step))
        for (const std::string& part : PartsOf(output))
            outputs.push_back(part);
    return outputs;
}

/// Reads header and lines as a file: what came of it, or the elements. Notices that are expected are answered.
Lines Reading(Host& host, const Step& rows, const Row& row) {
    const std::string& name = rows.words.at(1);
    std::string header;
    for (std::size_t i = 2; i < rows.words.size(); ++i)
        header += (i > 2 ? " " : "") + rows.words[i];
    Step file{.words = {"file", name}, .payload = row.lines};
    file.payload.insert(file.payload.begin(), header);
    host.Do(file);
    host.Do({.words = {"at", name}});
    Step read{.words = {"read"}};
    for (const std::string& output : row.outputs)
        if (output.starts_with("notice"))
            read.words.emplace_back("ok");
    Lines outputs = OutputsOf(host, read);
    if (!outputs.empty())
        return outputs;
    outputs = OutputsOf(host, {.words = {"show"}});
    outputs.erase(outputs.begin());
    return outputs;
}

} // namespace

void Play(const Case& one, Host& host) {
    for (const Step& step : one.steps) {
        SCOPED_TRACE(one.file + ".txt:" + std::to_string(step.line) + ": " + one.caption);
        for (const Row& row : step.rows)
            EXPECT_EQ(Reading(host, step, row), row.outputs) << row.text;
        if (!step.rows.empty())
            continue;
        Lines expected = step.outputs;
        std::erase_if(expected, [&](const std::string& output) { return !host.Sees(output); });
        EXPECT_EQ(OutputsOf(host, step), expected);
    }
}

Lines FileLines(const std::string& text) {
    Lines lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find("\r\n", at), text.size());
        lines.push_back(Escaped(text.substr(at, end - at)) + (end == text.size() ? "…" : ""));
        at = end + 2;
    }
    return lines;
}

Lines SymbolText(std::int32_t refX, std::int32_t refY, std::int32_t width, std::int32_t height,
                 const std::vector<Element>& elements) {
    Lines lines = {"size " + std::to_string(width) + " " + std::to_string(height) + " ref " +
                   std::to_string(refX) + " " + std::to_string(refY)};
    for (const Element& element : elements)
        lines.push_back(TextOf(element));
    return lines;
}

} // namespace golden
