#include "plan_files.h"

#include "../placed_plan.h"

#include <commdlg.h>

namespace fs = std::filesystem;

namespace {

constexpr wchar_t kPlans[] = L"Pläne (*.plan)\0*.plan\0Alle Dateien\0*.*\0";
constexpr wchar_t kDrawings[] = L"DXF-Zeichnungen (*.dxf)\0*.dxf\0Alle Dateien\0*.*\0";
constexpr std::size_t kLongestPath = 1024;

/// A name in the user's folder for such files; what is written there goes again.
class TemporaryFile {
public:
    explicit TemporaryFile(const std::wstring& extension)
        : path_(fs::temp_directory_path() /
                (L"Planhost-" + std::to_wstring(GetCurrentProcessId()) + extension)) {}
    TemporaryFile(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        std::error_code ignored;
        fs::remove(path_, ignored);
    }

    const fs::path& Path() const { return path_; }

private:
    fs::path path_;
};

struct FileQuestion {
    const wchar_t* title;
    const wchar_t* filter;
    const wchar_t* extension;
    DWORD flags;
    BOOL(WINAPI* ask)(OPENFILENAMEW*);
};

constexpr FileQuestion kOpen{L"Plan öffnen", kPlans, L"plan", OFN_FILEMUSTEXIST, GetOpenFileNameW};
constexpr FileQuestion kSave{L"Plan speichern", kPlans, L"plan", OFN_OVERWRITEPROMPT, GetSaveFileNameW};
constexpr FileQuestion kExport{L"Als DXF exportieren", kDrawings, L"dxf", OFN_OVERWRITEPROMPT,
                               GetSaveFileNameW};

/// The chosen file; empty when the user did not choose one. name: the first proposal.
fs::path Ask(const FileQuestion& question, HWND owner, const fs::path& name) {
    wchar_t path[kLongestPath] = L"";
    if (name.native().size() < kLongestPath)
        name.native().copy(path, kLongestPath - 1);
    OPENFILENAMEW form{};
    form.lStructSize = sizeof form;
    form.hwndOwner = owner;
    form.lpstrTitle = question.title;
    form.lpstrFilter = question.filter;
    form.lpstrDefExt = question.extension;
    form.lpstrFile = path;
    form.nMaxFile = kLongestPath;
    form.Flags = question.flags | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_PATHMUSTEXIST;
    return question.ask(&form) ? fs::path(path) : fs::path();
}

/// The library reads walls and rooms from a file.
void Export(const PlanDocument& document, const fs::path& drawing) {
    const TemporaryFile copy(L".plan");
    document.SaveCopy(copy.Path());
    const Ptr<_CPlan> plan = OpenPlan(copy.Path(), document.Catalogue());
    Check(plan->WriteDxf(Bstr(drawing.wstring()).Get(), planCentimetres), drawing.wstring());
}

} // namespace

std::wstring PlanName(const PlanDocument& document) {
    return document.File().empty() ? L"Unbenannt" : document.File().filename().wstring();
}

bool MayLeave(HWND owner, PlanDocument& document) {
    if (!document.IsModified())
        return true;
    const std::wstring question = L"\"" + PlanName(document) + L"\" ist geändert.\nÄnderungen speichern?";
    switch (MessageBoxW(owner, question.c_str(), L"Planhost", MB_YESNOCANCEL | MB_ICONQUESTION)) {
    case IDYES: return SavePlan(owner, document);
    case IDNO: return true;
    default: return false;
    }
}

bool StartNewPlan(HWND owner, PlanDocument& document) {
    if (!MayLeave(owner, document))
        return false;
    document.StartNew();
    return true;
}

fs::path AskForPlan(HWND owner, PlanDocument& document) {
    return MayLeave(owner, document) ? Ask(kOpen, owner, {}) : fs::path();
}

bool SavePlan(HWND owner, PlanDocument& document) {
    if (document.File().empty())
        return SavePlanAs(owner, document);
    document.SaveAs(document.File());
    return true;
}

bool SavePlanAs(HWND owner, PlanDocument& document) {
    const fs::path file = Ask(kSave, owner, document.File());
    if (!file.empty())
        document.SaveAs(file);
    return !file.empty();
}

void ExportAsDxf(HWND owner, const PlanDocument& document) {
    fs::path proposal = document.File();
    proposal.replace_extension(proposal.empty() ? L"" : L".dxf");
    if (const fs::path file = Ask(kExport, owner, proposal); !file.empty())
        Export(document, file);
}
