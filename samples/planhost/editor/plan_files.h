#pragma once

#include "plan_document.h"

// What the menu "Plan" does, with the questions that belong to it. owner: the window that asks.

/// What the user calls the plan: the name of its file.
std::wstring PlanName(const PlanDocument& document);

/// Asks whether to save changes; false when the user wants to stay.
bool MayLeave(HWND owner, PlanDocument& document);

/// Returns false when the user wants to stay.
bool StartNewPlan(HWND owner, PlanDocument& document);
/// The plan that the user wants to open; empty when there is none.
std::filesystem::path AskForPlan(HWND owner, PlanDocument& document);
/// Return false when the user did not choose a file.
bool SavePlan(HWND owner, PlanDocument& document);
bool SavePlanAs(HWND owner, PlanDocument& document);
void ExportAsDxf(HWND owner, const PlanDocument& document);
