#pragma once

#include <string>
#include <string_view>

/// What the user is told when something cannot be done; ends the program with exit code 1.
struct Failure {
    std::wstring message;
};

std::wstring FromUtf8(std::string_view bytes);
std::string ToUtf8(std::wstring_view text);

/// Writes a line to the console, or as UTF-8 into the file or pipe that stands in for it.
void PrintLine(std::wstring text);
void PrintErrorLine(std::wstring text);
