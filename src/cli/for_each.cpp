#include "cli/for_each.h"

namespace cli {

void ForEach(const std::vector<SourceFile>& files, Run& run, const FileWork& work,
             const FailureWork& failed) {
    std::size_t done = 0;
    for (const SourceFile& file : files) {
        run.ShowProgress(done++, files.size());
        const std::optional<base::Error> failure = run.Try(file.path, [&] {
            if (file.failure)
                throw base::Error(*file.failure);
            work(file);
        });
        if (failure && failed)
            failed(file, *failure);
    }
}

} // namespace cli
