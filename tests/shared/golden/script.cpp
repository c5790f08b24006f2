#include "golden/script.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <fstream>
#include <map>
#include <numbers>
#include <stdexcept>

namespace golden {

namespace {

using Names = std::map<std::string, Lines>;

std::string Trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(" \t\r");
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

Lines Named(const std::string& text, const Names& names) {
    Lines all;
    for (const std::string& part : PartsOf(text)) {
        const auto name = names.find(part);
        if (name == names.end())
            all.push_back(part);
        else
            all.insert(all.end(), name->second.begin(), name->second.end());
    }
    return all;
}

Step StepOf(const std::string& text, int line, const Names& names) {
    const auto arrow = text.find(" -> ");
    Step step{.line = line, .words = WordsOf(text.substr(0, arrow))};
    if (arrow != std::string::npos)
        step.outputs = Named(text.substr(arrow + 4), names);
    return step;
}

/// "LINE|LINE -> OUTPUTS", the lines as they stand.
Row RowOf(const std::string& text, const Names& names) {
    const auto arrow = text.starts_with("-> ") ? 0 : text.find(" -> ");
    Row row{.text = text, .lines = {""}, .outputs = {}};
    const std::size_t end = std::min(arrow, text.size());
    for (const char c : text.substr(0, end)) {
        if (c == '|')
            row.lines.emplace_back();
        else
            row.lines.back() += c;
    }
    if (arrow != std::string::npos)
        row.outputs = Named(text.substr(text.find("-> ", arrow) + 3), names);
    return row;
}

void Read(const std::filesystem::path& file, std::vector<Case>& cases) {
    std::ifstream in(file);
    Names names;
    int number = 0;
    Case* current = nullptr;
    for (std::string line; std::getline(in, line);) {
        const auto wrong = [&](const char* why) {
            return std::runtime_error(file.string() + ":" + std::to_string(number) + ": " + why);
        };
        const std::string text = Trimmed(line);
        if (++number == 1 || text.empty() || line[0] == '#')
            continue;
        if (text.starts_with("== ")) {
            cases.push_back({.file = file.stem().string(), .caption = text.substr(3), .steps = {}});
            current = &cases.back();
        } else if (line.starts_with("name ")) {
            const auto equals = text.find(" = ");
            if (equals == std::string::npos)
                throw wrong("a name without outputs");
            names[Trimmed(text.substr(5, equals - 5))] = Named(text.substr(equals + 3), names);
        } else if (current == nullptr || (current->steps.empty() && (line[0] == ' ' || line[0] == '='))) {
            throw wrong("no case or no command yet");
        } else if (line.starts_with("  ")) {
            Step& step = current->steps.back();
            if (step.words[0] == "rows")
                step.rows.push_back(RowOf(line.substr(2), names));
            else
                step.payload.push_back(line.substr(2));
        } else if (line.starts_with("= ")) {
            const Lines more = Named(line.substr(2), names);
            Lines& outputs = current->steps.back().outputs;
            outputs.insert(outputs.end(), more.begin(), more.end());
        } else {
            current->steps.push_back(StepOf(text, number, names));
        }
    }
    if (current == nullptr)
        throw std::runtime_error(file.string() + " has no cases");
}

template <class T>
std::string Bytes(T value) {
    std::string bytes(sizeof value, '\0');
    std::memcpy(bytes.data(), &value, sizeof value);
    return bytes;
}

} // namespace

std::vector<Case> CasesIn(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".txt")
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    std::vector<Case> cases;
    for (const std::filesystem::path& file : files)
        Read(file, cases);
    return cases;
}

std::string TestName(const Case& one) {
    std::string name = one.file + "_";
    bool start = true;
    for (const char c : one.caption) {
        const bool plain = std::isalnum(static_cast<unsigned char>(c)) != 0;
        if (plain)
            name += start ? static_cast<char>(std::toupper(static_cast<unsigned char>(c))) : c;
        start = !plain;
    }
    return name;
}

Lines WordsOf(const std::string& text) {
    Lines words;
    for (std::size_t at = text.find_first_not_of(' '); at < text.size();
         at = text.find_first_not_of(' ', at)) {
        const bool quoted = text[at] == '"';
        const std::size_t start = quoted ? at + 1 : at;
        const std::size_t end = std::min(text.find(quoted ? '"' : ' ', start), text.size());
        words.push_back(text.substr(start, end - start));
        at = std::min(end + 1, text.size());
    }
    return words;
}

Lines PartsOf(const std::string& text) {
    Lines parts;
    for (std::size_t at = 0; at <= text.size();) {
        const std::size_t end = std::min(text.find(" | ", at), text.size());
        parts.push_back(Trimmed(text.substr(at, end - at)));
        at = end + 3;
    }
    return parts;
}

std::int32_t Long(const std::string& word) {
    return static_cast<std::int32_t>(std::stoll(word));
}

double Radians(const std::string& degrees) {
    return std::stod(degrees) * std::numbers::pi / 180;
}

std::string Unescaped(const std::string& text) {
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\') {
            bytes += text[i];
            continue;
        }
        const char kind = text.at(++i);
        if (kind == 'x') {
            bytes += static_cast<char>(std::stoi(text.substr(i + 1, 2), nullptr, 16));
            i += 2;
        } else {
            bytes += kind == 'r' ? '\r' : kind == 'n' ? '\n' : kind == 't' ? '\t' : kind;
        }
    }
    return bytes;
}

std::string Escaped(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        constexpr const char* kDigits = "0123456789ABCDEF";
        const auto byte = static_cast<unsigned char>(c);
        if (c == '\r' || c == '\n' || c == '\t' || c == '\\')
            escaped += {'\\', c == '\r' ? 'r' : c == '\n' ? 'n' : c == '\t' ? 't' : '\\'};
        else if (byte < 32)
            escaped += {'\\', 'x', kDigits[byte / 16], kDigits[byte % 16]};
        else
            escaped += c;
    }
    return escaped;
}

std::string BinaryOf(const Lines& words) {
    std::string bytes;
    for (const std::string& word : words) {
        const std::string rest = word.substr(1);
        if (word[0] == 'f') {
            bytes += Bytes(std::stod(rest));
        } else if (word[0] == 'w') {
            bytes += Bytes(static_cast<std::uint16_t>(std::stoi(rest, nullptr, 16)));
        } else if (word[0] == 'x') {
            for (std::size_t i = 0; i + 1 < rest.size(); i += 2)
                bytes += static_cast<char>(std::stoi(rest.substr(i, 2), nullptr, 16));
        } else if (word[0] == '\'') {
            const std::string text = Unescaped(rest.substr(0, rest.size() - 1));
            bytes += Bytes(static_cast<std::uint16_t>(text.size())) + text;
        } else {
            bytes += Bytes(Long(word));
        }
    }
    return bytes;
}

Lines EntitiesOf(const std::string& bytes) {
    Lines lines;
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t end = std::min(bytes.find("\r\n", at), bytes.size());
        lines.push_back(bytes.substr(at, end - at));
        at = end + 2;
    }
    Lines entities;
    for (std::size_t i = 0; i < lines.size(); i += 2) {
        const bool starts = Trimmed(lines[i]) == "0" || entities.empty();
        std::replace(lines[i].begin(), lines[i].end(), ' ', '_');
        const std::string pair = lines[i] + "=" + (i + 1 < lines.size() ? Escaped(lines[i + 1]) : "");
        if (starts)
            entities.push_back(pair);
        else
            entities.back() += " " + pair;
    }
    return entities;
}

} // namespace golden
