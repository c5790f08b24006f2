#pragma once

#include "bench/plan_symbols.h"

#include <string>
#include <string_view>
#include <vector>

namespace bench {

constexpr int kFilesOfAFolder = 10000;

/// A folder under the build tree, empty at first and gone at the end.
class BuildFolder {
public:
    explicit BuildFolder(std::string_view name);
    BuildFolder(const BuildFolder&) = delete;
    BuildFolder& operator=(const BuildFolder&) = delete;
    ~BuildFolder();

    const std::string& Path() const { return path_; }

private:
    std::string path_;
};

/// A folder of 10,000 symbols, these over and over, in the format of that extension.
class SymbolFolder : public BuildFolder {
public:
    SymbolFolder(std::string_view name, std::vector<qsymbol::Symbol> symbols,
                 std::string_view extension = "syb");

    World& TheWorld() const { return world_; }

private:
    mutable World world_;
};

/// Lists the folder, then opens, sizes, reads and closes every file, with one buffer for all.
void ReadFiles(const std::string& folder);

} // namespace bench
