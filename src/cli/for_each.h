#pragma once

#include "cli/run.h"
#include "cli/source_file.h"

#include <functional>
#include <vector>

namespace cli {

using FileWork = std::function<void(const SourceFile&)>;
using FailureWork = std::function<void(const SourceFile&, const base::Error&)>;

/// Does the work for every file, showing how far it is. A file that fails is told of and does not stop the others;
/// `failed` is what else there is to be done about it.
void ForEach(const std::vector<SourceFile>& files, Run& run, const FileWork& work,
             const FailureWork& failed = {});

} // namespace cli
