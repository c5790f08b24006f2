#pragma once

#include <windows.h>

#include <filesystem>
#include <string>
#include <vector>

// A plan as its file describes it: one record a line, fields separated by semicolons, UTF-8, lengths in
// millimetres, y downwards, angles in degrees counter-clockwise, # at the start of a comment:
//   PLAN;title;width;height
//   FLOOR;colour;left;top;right;bottom
//   WALL;x1;y1;x2;y2;thickness
//   ROOM;name;x;y
//   SYMBOL;name;x;y;angle

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
    POINT at;
    long angle;
    int line; ///< in the plan file, for messages
};

struct Plan {
    std::wstring title;
    long width = 0;
    long height = 0;
    std::vector<Floor> floors;
    std::vector<Wall> walls;
    std::vector<Room> rooms;
    std::vector<PlacedSymbol> symbols;
};

/// The angle of a placed symbol as the library takes it.
double Radians(const PlacedSymbol& placed);

Plan ReadPlan(const std::filesystem::path& file);
