#pragma once

#include <windows.h>

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

// A plan as its file describes it: one record a line, fields separated by semicolons, UTF-8, lengths in
// millimetres, y downwards, angles in degrees counter-clockwise, # at the start of a comment:
//   PLAN;title;width;height
//   FLOOR;colour;left;top;right;bottom
//   WALL;x1;y1;x2;y2;thickness
//   ROOM;name;x;y
//   SYMBOL;name;x;y;angle
// Place and angle of a symbol may have decimals behind a point, the place two at most.

struct Floor {
    COLORREF colour;
    RECT area;
};

struct Wall {
    POINT from, to; ///< the middle line
    long thickness;
};

struct Room {
    std::wstring name;
    POINT middle;
};

struct PlacedSymbol {
    std::wstring name;
    POINT at;     ///< in the libraries' units, hundredths of a millimetre
    double angle; ///< in degrees
    int line = 0; ///< in the plan file; 0: not there yet

    bool operator==(const PlacedSymbol& other) const {
        return name == other.name && at.x == other.at.x && at.y == other.at.y && angle == other.angle &&
               line == other.line;
    }
};

struct Plan {
    std::wstring title;
    long width = 0;
    long height = 0;
    std::vector<Floor> floors;
    std::vector<Wall> walls;
    std::vector<Room> rooms;
    std::vector<PlacedSymbol> symbols; ///< what stands later lies on top
    std::vector<std::string> lines;    ///< of the file, as they were read
};

/// The angle of a placed symbol as the library takes it.
double Radians(const PlacedSymbol& placed);

/// Which symbol it is, for messages.
std::wstring Describe(const PlacedSymbol& placed);

Plan ReadPlan(const std::filesystem::path& file);
/// Reads a plan's text. name: what it is, for messages.
Plan ParsePlan(std::istream& text, const std::wstring& name);

/// The lines of placed symbols, as a plan file has them.
std::string SymbolLines(const std::vector<PlacedSymbol>& symbols);

/// Writes the lines of the plan back, with the symbols as they are now: what is not a symbol stays as it was
/// read, comments too; new symbols come last. The old file is there until the new one is complete.
void WritePlan(const Plan& plan, const std::filesystem::path& file);
