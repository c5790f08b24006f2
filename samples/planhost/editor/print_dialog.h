#pragma once

#include "plan_document.h"

/// Shows how the plan comes onto paper, to a scale that the user chooses, and prints it.
void PrintPlan(HWND owner, const PlanDocument& document);
