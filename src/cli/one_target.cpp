#include "cli/one_target.h"

#include "cli/for_each.h"
#include "cli/shown.h"
#include "cli/symbol_files.h"
#include "cli/symbol_io.h"
#include "cli/targets.h"

namespace cli {

void WriteOneTarget(const OneTarget& target, const std::vector<std::string>& sources, Run& run) {
    Targets targets(run);
    Target claimed;
    if (run.Try(target.path, [&] { claimed = targets.Claim(target.path); }))
        return;
    std::size_t count = 0;
    const std::vector<SourceFile> files = SymbolFiles(sources, run);
    ForEach(files, run, [&](const SourceFile& source) {
        target.add(source, ReadSymbol(source.path, run));
        ++count;
    });
    if (count == 0 && !files.empty())
        return; // all of them failed
    run.Try(target.path, [&] { targets.Write(claimed, target.compose()); });
    run.Remark(Counted(count, target.noun) + '\n');
}

} // namespace cli
