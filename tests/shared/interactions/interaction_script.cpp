#include "interactions/interaction_script.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

namespace interactions {

namespace {

using Names = std::map<std::string, std::vector<std::string>>;

std::string Trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(" \t\r");
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

/// The accesses between bars, names replaced by what they stand for.
std::vector<std::string> Accesses(const std::string& text, const Names& names) {
    std::vector<std::string> accesses;
    std::istringstream parts(text);
    for (std::string part; std::getline(parts, part, '|');) {
        const auto name = names.find(Trimmed(part));
        if (name == names.end())
            accesses.push_back(Trimmed(part));
        else
            accesses.insert(accesses.end(), name->second.begin(), name->second.end());
    }
    return accesses;
}

} // namespace

Words WordsOf(const std::string& text) {
    Words words;
    std::istringstream in(text);
    for (std::string word; in >> word;)
        words.push_back(word);
    return words;
}

std::int32_t Long(const std::string& word) {
    return std::stoi(word);
}

std::int16_t Short(const std::string& word) {
    return static_cast<std::int16_t>(Long(word));
}

Script ReadScript(const std::filesystem::path& file) {
    std::ifstream in(file);
    Script script;
    script.name = file.stem().string();
    if (!std::getline(in, script.caption))
        throw std::runtime_error("cannot read " + file.string());
    script.caption = Trimmed(script.caption);
    Names names;
    int number = 1;
    for (std::string line; std::getline(in, line);) {
        ++number;
        line = Trimmed(line);
        if (line.empty() || line[0] == '#')
            continue;
        const std::string rest = Trimmed(line.substr(1));
        const auto wrong = [&](const char* why) {
            return std::runtime_error(file.string() + ":" + std::to_string(number) + ": " + why);
        };
        if (line[0] == '*') {
            script.setup.push_back(WordsOf(rest));
        } else if (line[0] == ':') {
            const auto equals = rest.find('=');
            if (equals == std::string::npos)
                throw wrong("a name without accesses");
            names[Trimmed(rest.substr(0, equals))] = Accesses(rest.substr(equals + 1), names);
        } else if (line[0] == '>') {
            script.events.push_back({.line = number, .words = WordsOf(rest)});
        } else if (script.events.empty()) {
            throw wrong("no event yet");
        } else if (line[0] == '-') {
            const std::vector<std::string> accesses = Accesses(rest, names);
            auto& all = script.events.back().accesses;
            all.insert(all.end(), accesses.begin(), accesses.end());
        } else if (line[0] == '=') {
            script.events.back().state = rest;
        } else if (line[0] == '!') {
            script.events.back().error = WordsOf(rest);
        } else {
            throw wrong("not understood");
        }
    }
    if (script.events.empty())
        throw std::runtime_error(file.string() + " has no events");
    return script;
}

std::vector<std::filesystem::path> ScriptsIn(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".txt")
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace interactions
