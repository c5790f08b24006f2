#pragma once

#include "plan_view.h"
#include "pointer.h"

/// The first point of a placed symbol that lies near a pixel, or the pixel itself.
Pointer CatchPoint(const PlanDocument& document, const PlanView& view, POINT pixel);
