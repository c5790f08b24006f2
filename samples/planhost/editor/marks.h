#pragma once

#include "plan_document.h"
#include "plan_scene.h"
#include "view_map.h"

#include <array>
#include <optional>
#include <vector>

/// What shows the marked symbols, in pixels: they keep their colours.
struct Marks {
    using Corners = std::array<POINT, 4>;

    std::vector<Corners> frames;  ///< round each one
    std::optional<Corners> group; ///< round all, where there are several
    POINT turnHandle;             ///< of what is marked
    POINT stem;                   ///< where the turn handle is fastened
    UINT dots;                    ///< of the screen to the inch
};

/// Nothing while no symbol is marked. dots: of the screen to the inch.
std::optional<Marks> MarksOf(const PlanDocument& document, const PlanScene& scene, const ViewMap& map,
                             UINT dots);

void DrawMarks(HDC dc, const std::optional<Marks>& marks);

bool IsTurnHandleAt(const std::optional<Marks>& marks, POINT pixel);

/// A thin frame round the symbol that the mouse points to.
void DrawHoverFrame(HDC dc, const Marks::Corners& corners, UINT dots);
