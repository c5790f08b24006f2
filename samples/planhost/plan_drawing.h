#pragma once

#include "catalogue.h"
#include "plan_file.h"

#include <QMath.h>

#include <vector>

/// What a plan is drawn on. The map from plan to pixels is the one that the libraries get as well.
struct Canvas {
    HDC dc;
    SIZE size; ///< in pixels
    _CTrans& transformation;
    int fineness = 1; ///< lines are at least as many pixels wide
};

/// The pixel of a place in millimetres.
POINT ToPixel(const Canvas& canvas, double x, double y);

/// Floors and walls.
void DrawBelowSymbols(const Canvas& canvas, const Plan& plan);
/// The title and the names of the rooms.
void DrawAboveSymbols(const Canvas& canvas, const Plan& plan);

/// The same in two steps, onto a surface of the host's choice that draws on the canvas.
void DrawSymbolsOn(IDispatch& surface, const Canvas& canvas, const Plan& plan,
                   const std::vector<Ptr<_CSymbol>>& symbols, const std::vector<std::size_t>& marked);

/// Draws the plan: floors, walls, symbols and names, in this order. symbols: those of the plan, in its order; marked:
/// the places of those that get the mark colour.
void DrawPlanOn(const Canvas& canvas, const Plan& plan, const std::vector<Ptr<_CSymbol>>& symbols,
                const std::vector<std::size_t>& marked);
