#pragma once

#include "cli/run.h"

#include <CLI/App.hpp>

namespace cli {

/// A subcommand is a file in commands/ with a function of this kind, declared here and named in program.cpp.
/// It adds its description and its arguments, and as callback what it does. What all commands need is here:
///
/// - SymbolFiles: the files that PATH arguments and -r stand for; ForEach: does the work for each, tells
/// failures, shows
///   progress; ReadSymbol: reads one under --decimal
/// - Targets: Claim (error 58, two sources with one target) and Write (folders made, beside and renamed);
/// TargetIn: where
///   a source's target stands in a folder
/// - Run: Print (results), Remark (not with -q), Found (status 1), Try and Fail (failures of a file);
/// WrongUsage (status 2)
/// - an error that belongs to another file than the source is thrown as FailureOf
using AddCommand = void (*)(CLI::App& application, Run& run);

void AddInfo(CLI::App& application, Run& run);
void AddCheck(CLI::App& application, Run& run);
void AddConvert(CLI::App& application, Run& run);
void AddSvg(CLI::App& application, Run& run);
void AddGallery(CLI::App& application, Run& run);
void AddDxf(CLI::App& application, Run& run);
void AddPlan(CLI::App& application, Run& run);
void AddDiff(CLI::App& application, Run& run);

/// A subcommand with the options that all of them have.
CLI::App& AddSubcommand(CLI::App& application, Run& run, const char* name, const char* description);

/// Ends the program with the text and status 2: what was asked for makes no sense.
[[noreturn]] void WrongUsage(const std::string& text);

} // namespace cli
