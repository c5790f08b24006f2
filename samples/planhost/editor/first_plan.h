#pragma once

#include "settings.h"

#include <filesystem>

/// What the editor begins with when nobody says it.
struct FirstPlan {
    std::filesystem::path catalogueFolder;
    std::filesystem::path plan;
};

/// The last plan that is still there, or else a copy of the sample plan in the user's folder, with the sample catalogue. Fails
/// when there is neither.
FirstPlan FindFirstPlan(const Settings& settings);
