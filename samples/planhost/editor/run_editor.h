#pragma once

#include <filesystem>

/// Shows the editor until the user quits it. plan: the first plan; empty for a new one.
void RunEditor(const std::filesystem::path& catalogueFolder, const std::filesystem::path& plan);

/// The same with the last plan and its catalogue; the first time, with a copy of the sample plan that came with the program.
void RunEditor();
