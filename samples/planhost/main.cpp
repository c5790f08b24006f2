// A host of the symbol library: converts symbols, draws a plan with them, finds them there, exports it, shows
// a catalogue and edits a plan in a window.

#include "catalogue.h"
#include "catalogue_sheet.h"
#include "editor/run_editor.h"
#include "plan_mark.h"
#include "run_program.h"
#include "text.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

constexpr int kDefaultPixelWidth = 2000;
constexpr int kLargestPixelWidth = 10000;
constexpr int kLargestPixel = 20000; // no picture is higher

[[noreturn]] void FailWithUsage();

using Arguments = std::vector<std::wstring>;

void Convert(const Arguments& arguments) {
    const int count = ConvertFolder(arguments[0], arguments[1]);
    PrintLine(std::to_wstring(count) + L" Symbole nach " + arguments[1] + L" geschrieben.");
}

/// A number that must lie within bounds; what: what it is, for the message.
int Number(const std::wstring& argument, int lowest, int highest, const std::wstring& what) {
    wchar_t* end = nullptr;
    const long number = std::wcstol(argument.c_str(), &end, 10);
    if (argument.empty() || *end != L'\0' || number < lowest || number > highest)
        throw Failure{L"Keine " + what + L" von " + std::to_wstring(lowest) + L" bis " +
                      std::to_wstring(highest) + L": " + argument};
    return static_cast<int>(number);
}

/// "95 Symbole in Bild.png gezeichnet." where: the last words.
std::wstring Outcome(_CPlan& plan, const std::wstring& where) {
    LONG count = 0;
    Check(plan.get_Count(&count));
    return std::to_wstring(count) + (count == 1 ? L" Symbol " : L" Symbole ") + where;
}

Bstr AbsolutePath(const std::wstring& file) {
    return Bstr(std::filesystem::absolute(file).wstring());
}

void Plot(const Arguments& arguments) {
    const int width = arguments.size() > 3 ? Number(arguments[3], 1, kLargestPixelWidth, L"Bildbreite")
                                           : kDefaultPixelWidth;
    const Ptr<_CSymbolColl> catalogue = OpenCatalogue(arguments[0]);
    const Ptr<_CPlan> plan = OpenPlan(arguments[1], *catalogue.Get());
    Check(plan->WritePicture(AbsolutePath(arguments[2]).Get(), width), arguments[2]);
    PrintLine(Outcome(*plan.Get(), L"in " + arguments[2] + L" gezeichnet."));
}

void Mark(const Arguments& arguments) {
    if (arguments.size() == 6)
        FailWithUsage();
    std::vector<int> at;
    for (std::size_t i = 3; i < arguments.size(); ++i)
        at.push_back(Number(arguments[i], 0, kLargestPixel, L"Bildkoordinate"));
    PointedAt place{{at[0], at[1], at[0], at[1]}, true};
    if (at.size() == 4) {
        // A rectangle may be drawn up from any of its corners.
        place = {
            {std::min(at[0], at[2]), std::min(at[1], at[3]), std::max(at[0], at[2]), std::max(at[1], at[3])},
            false};
    }
    const Plan plan = ReadPlan(arguments[1]);
    const Ptr<_CSymbolColl> catalogue = OpenCatalogue(arguments[0]);
    const std::vector<std::wstring> names =
        MarkPlan(plan, *catalogue.Get(), kDefaultPixelWidth, place, arguments[2]);
    PrintLine(std::to_wstring(names.size()) + (names.size() == 1 ? L" Symbol in " : L" Symbole in ") +
              arguments[2] + L" markiert.");
    for (const std::wstring& name : names)
        PrintLine(L"  " + name);
}

void Export(const Arguments& arguments) {
    const Ptr<_CSymbolColl> catalogue = OpenCatalogue(arguments[0]);
    const Ptr<_CPlan> plan = OpenPlan(arguments[1], *catalogue.Get());
    Check(plan->WriteDxf(AbsolutePath(arguments[2]).Get(), planCentimetres), arguments[2]);
    PrintLine(Outcome(*plan.Get(), L"nach " + arguments[2] + L" geschrieben."));
}

void DrawSheet(_CSymbolColl& symbols, const Arguments& arguments) {
    const std::wstring& picture = arguments[1];
    DrawCatalogueSheet(symbols, arguments[0], picture);
    LONG count = 0;
    Check(symbols.get_Count(&count));
    PrintLine(std::to_wstring(count) + L" Symbole in " + picture + L" gezeichnet.");
}

void ShowCatalogue(const Arguments& arguments) {
    DrawSheet(*OpenCatalogue(arguments[0]).Get(), arguments);
}

void Import(const Arguments& arguments) {
    DrawSheet(*ImportFolder(arguments[0]).Get(), arguments);
}

void Edit(const Arguments& arguments) {
    RunEditor(arguments[0], arguments.size() > 1 ? arguments[1] : L"");
}

struct Command {
    const wchar_t* name;
    std::size_t fewest, most; ///< arguments
    const wchar_t* form;
    void (*run)(const Arguments& arguments);
};

constexpr Command kCommands[] = {
    {L"convert", 2, 2, L"TEXTORDNER KATALOGORDNER", Convert},
    {L"plan", 3, 4, L"KATALOGORDNER PLANDATEI BILD.png [BILDBREITE]", Plot},
    {L"dxf", 3, 3, L"KATALOGORDNER PLANDATEI PLAN.dxf", Export},
    {L"mark", 5, 7, L"KATALOGORDNER PLANDATEI BILD.png X Y [X2 Y2]", Mark},
    {L"sheet", 2, 2, L"KATALOGORDNER BILD.png", ShowCatalogue},
    {L"import", 2, 2, L"WSCORDNER BILD.png", Import},
    {L"edit", 1, 2, L"KATALOGORDNER [PLANDATEI]", Edit},
};

[[noreturn]] void FailWithUsage() {
    std::wstring usage = L"Aufruf:";
    for (const Command& command : kCommands)
        usage += std::wstring(L"\r\n  planhost ") + command.name + L" " + command.form;
    throw Failure{usage};
}

void Run(const std::wstring& name, const Arguments& arguments) {
    for (const Command& command : kCommands) {
        if (name == command.name && arguments.size() >= command.fewest && arguments.size() <= command.most)
            return command.run(arguments);
    }
    FailWithUsage();
}

} // namespace

int wmain(int count, wchar_t** values) {
    return RunProgram([&] {
        if (count < 2)
            RunEditor();
        else
            Run(values[1], Arguments(values + 2, values + count));
    });
}
