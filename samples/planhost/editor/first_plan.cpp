#include "first_plan.h"

#include "../catalogue.h"
#include "../text.h"

namespace fs = std::filesystem;

namespace {

struct Samples {
    fs::path catalogue; ///< of text symbols
    fs::path plan;
};

fs::path ProgramFolder() {
    wchar_t path[MAX_PATH * 4];
    return fs::path(std::wstring(path, GetModuleFileNameW(nullptr, path, MAX_PATH * 4))).parent_path();
}

/// The samples lie in the folder "samples" beside the program or beside a folder above it.
Samples FindSamples() {
    const fs::path start = ProgramFolder();
    for (fs::path folder = start;; folder = folder.parent_path()) {
        const Samples found{folder / L"samples" / L"katalog",
                            folder / L"samples" / L"planhost" / L"wohnung.plan"};
        std::error_code ignored;
        if (fs::is_directory(found.catalogue, ignored) && fs::exists(found.plan, ignored))
            return found;
        if (folder == folder.parent_path())
            throw Failure{
                L"Das Beispiel wurde nicht gefunden. Aufruf: planhost edit KATALOGORDNER [PLANDATEI]"};
    }
}

} // namespace

FirstPlan FindFirstPlan(const Settings& settings) {
    const FirstPlan last{settings.Text(L"Plan", L"Katalog"), settings.Text(L"Plan", L"Zuletzt")};
    std::error_code ignored;
    if (fs::is_directory(last.catalogueFolder, ignored) && fs::exists(last.plan, ignored))
        return last;
    const Samples samples = FindSamples();
    const FirstPlan own{settings.Folder() / L"Katalog", settings.Folder() / L"wohnung.plan"};
    ConvertFolder(samples.catalogue, own.catalogueFolder);
    if (!fs::exists(own.plan, ignored))
        fs::copy_file(samples.plan, own.plan);
    return own;
}
