#pragma once

#include <CLI/App.hpp>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace cli {

/// Adds an option that takes one of these words and nothing else.
template <class Value>
void AddChoice(CLI::App& command, const std::string& name, Value& value,
               const std::vector<std::pair<std::string, Value>>& choices, const std::string& description) {
    std::vector<std::string> words;
    for (const auto& [word, meaning] : choices)
        words.push_back(word);
    command
        .add_option_function<std::string>(
            name,
            [&value, choices](const std::string& word) {
                const auto isIt = [&](const auto& choice) { return choice.first == word; };
                value = std::find_if(choices.begin(), choices.end(), isIt)->second;
            },
            description)
        ->check(CLI::IsMember(words).description(""))
        ->type_name(CLI::detail::join(words, "|"));
}

} // namespace cli
