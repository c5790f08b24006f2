#pragma once

#include "wall_outline.h"

#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

/// A DXF file of release 12, written tag by tag. Lengths are in units of the file, y upwards.
class DxfFile {
public:
    enum Mode { New, Continue };

    DxfFile(const std::filesystem::path& path, Mode mode);

    /// Header and tables; the sheet reaches from 0, 0 to its upper right corner.
    void Begin(Position upperRight, std::initializer_list<std::string_view> layers);
    void ClosedLine(std::string_view layer, std::span<const Position> points);
    /// A text on its baseline, starting at a place or centred about it.
    void Text(std::string_view layer, Position at, double height, const std::wstring& text, bool centred);
    void End();
    /// Closes the file; fails when something could not be written.
    void Close();

private:
    template <class Value>
    void Tag(int code, const Value& value) {
        stream_ << code << "\r\n" << value << "\r\n";
    }
    void Place(int code, Position at);
    void Table(std::string_view name, std::size_t entries);
    void Layer(std::string_view name);

    std::filesystem::path path_;
    std::ofstream stream_;
};
