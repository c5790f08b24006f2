#include "dxf_file.h"

#include "text.h"

#include <windows.h>

namespace {

/// The text in the ANSI code page, in which the library writes as well.
std::string ToAnsi(const std::wstring& text) {
    const int length = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(CP_ACP, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string bytes(size, '\0');
    WideCharToMultiByte(CP_ACP, 0, text.data(), length, bytes.data(), size, nullptr, nullptr);
    return bytes;
}

} // namespace

DxfFile::DxfFile(const std::filesystem::path& path, Mode mode)
    : path_(path), stream_(path, std::ios::binary | (mode == New ? std::ios::trunc : std::ios::app)) {
    if (!stream_)
        throw Failure{L"Die Datei lässt sich nicht schreiben: " + path.wstring()};
    stream_.precision(15);
}

void DxfFile::Begin(Position upperRight, std::initializer_list<std::string_view> layers) {
    Tag(0, "SECTION");
    Tag(2, "HEADER");
    Tag(9, "$ACADVER");
    Tag(1, "AC1009");
    Tag(9, "$DWGCODEPAGE");
    Tag(3, "ANSI_" + std::to_string(GetACP()));
    Tag(9, "$EXTMIN");
    Place(10, {0, 0});
    Tag(9, "$EXTMAX");
    Place(10, upperRight);
    Tag(0, "ENDSEC");

    Tag(0, "SECTION");
    Tag(2, "TABLES");
    Table("LTYPE", 1);
    Tag(0, "LTYPE");
    Tag(2, "CONTINUOUS");
    Tag(70, 0);
    Tag(3, "Solid line");
    Tag(72, 65);
    Tag(73, 0);
    Tag(40, "0.0");
    Tag(0, "ENDTAB");
    Table("LAYER", layers.size() + 1);
    Layer("0");
    for (const std::string_view layer : layers)
        Layer(layer);
    Tag(0, "ENDTAB");
    Table("STYLE", 1);
    Tag(0, "STYLE");
    Tag(2, "STANDARD");
    Tag(70, 0);
    Tag(40, "0.0");
    Tag(41, "1.0");
    Tag(50, "0.0");
    Tag(71, 0);
    Tag(42, "10.0");
    Tag(3, "arial.ttf");
    Tag(4, "");
    Tag(0, "ENDTAB");
    Tag(0, "ENDSEC");

    Tag(0, "SECTION");
    Tag(2, "ENTITIES");
}

void DxfFile::ClosedLine(std::string_view layer, std::span<const Position> points) {
    Tag(0, "POLYLINE");
    Tag(8, layer);
    Tag(66, 1);
    Tag(70, 1);
    Place(10, {0, 0});
    for (const Position& point : points) {
        Tag(0, "VERTEX");
        Tag(8, layer);
        Place(10, point);
    }
    Tag(0, "SEQEND");
    Tag(8, layer);
}

void DxfFile::Text(std::string_view layer, Position at, double height, const std::wstring& text,
                   bool centred) {
    Tag(0, "TEXT");
    Tag(8, layer);
    Place(10, at);
    Tag(40, height);
    Tag(1, ToAnsi(text));
    if (centred) {
        Tag(72, 1);
        Place(11, at);
    }
}

void DxfFile::End() {
    Tag(0, "ENDSEC");
    Tag(0, "EOF");
}

void DxfFile::Close() {
    stream_.close();
    if (!stream_)
        throw Failure{L"Die Datei ist nicht vollständig geschrieben: " + path_.wstring()};
}

void DxfFile::Place(int code, Position at) {
    Tag(code, at.x);
    Tag(code + 10, at.y);
    Tag(code + 20, "0.0");
}

void DxfFile::Table(std::string_view name, std::size_t entries) {
    Tag(0, "TABLE");
    Tag(2, name);
    Tag(70, entries);
}

void DxfFile::Layer(std::string_view name) {
    Tag(0, "LAYER");
    Tag(2, name);
    Tag(70, 0);
    Tag(62, 7);
    Tag(6, "CONTINUOUS");
}
