#include "autosave.h"

#include "../text.h"

namespace fs = std::filesystem;

fs::path Autosave::FileFor(const fs::path& plan) const {
    if (plan.empty())
        return folder_ / L"Unbenannt.plan.auto";
    return fs::path(plan).concat(L".auto");
}

bool Autosave::Keep(const PlanDocument& document) {
    const bool isKept = state_ == document.State() && plan_ == document.PlanNumber();
    if (!document.IsModified() || isKept)
        return true;
    const fs::path file = FileFor(document.File());
    try {
        fs::create_directories(file.parent_path());
        document.SaveCopy(file);
    } catch (const Failure&) {
        return false;
    } catch (const fs::filesystem_error&) {
        return false;
    }
    if (kept_ != file)
        Discard();
    kept_ = file;
    state_ = document.State();
    plan_ = document.PlanNumber();
    return true;
}

void Autosave::Discard() {
    std::error_code ignored;
    if (!kept_.empty())
        fs::remove(kept_, ignored);
    kept_.clear();
    state_ = plan_ = 0;
}
