#pragma once

#include <string>
#include <vector>

/// The arguments of a program as Google Benchmark takes them; its own options are plain ASCII.
class NarrowArguments {
public:
    NarrowArguments(int count, const wchar_t* const* wide) {
        for (int i = 0; i < count; ++i) {
            const std::wstring text(wide[i]);
            texts_.emplace_back(text.begin(), text.end());
        }
        for (std::string& text : texts_)
            pointers_.push_back(text.data());
    }

    char** Data() { return pointers_.data(); }

private:
    std::vector<std::string> texts_;
    std::vector<char*> pointers_;
};
