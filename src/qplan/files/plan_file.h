#pragma once

#include "base/file_system.h"
#include "qplan/plan/plan.h"

#include <string>
#include <string_view>

/// Plan files: one record a line, fields separated by semicolons, UTF-8, see docs/plan-files.md.
namespace qplan {

/// Error 321 "Ungültiges Dateiformat" for a file that is no plan, error 5 for a symbol that the source has not; both name the
/// line. Error 91 without symbols, when the file has any.
inline constexpr std::int32_t kInvalidFileFormat = 321;

/// Replaces sheet and placements by those of the file's bytes; ids go on. The plan is as before after any error.
void DecodePlan(Plan& plan, std::string_view bytes);
/// The file's bytes. Lines that are no symbols stay as they were read, comments too. Error 5 for a name that a file
/// cannot hold.
std::string EncodePlan(const Plan& plan);

/// Errors of DecodePlan and FileSystem::Open.
void ReadPlan(Plan& plan, base::FileSystem& files, const std::u16string& path);
/// Written beside and renamed: the old file stays whole after any error. Errors of EncodePlan and FileSystem.
void WritePlan(const Plan& plan, base::FileSystem& files, const std::u16string& path);

} // namespace qplan
