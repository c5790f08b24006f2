#pragma once

#include <filesystem>

/// Shows the editor until the user quits it. plan: the first plan; empty for a new one.
void RunEditor(const std::filesystem::path& catalogueFolder, const std::filesystem::path& plan);
