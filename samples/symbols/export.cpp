// Writes a plan as a DXF file of release 12 with the symbol library alone: head and end are the host's own, in centimetres;
// between them the library appends each symbol.

#include "dxf_file.h"
#include "plan_symbols.h"
#include "sample.h"
#include "unfinished_file.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace {

constexpr double kMillimetresPerUnit = 10;
// Millimetres in the plan; letters of a DXF text are as tall as its height.
constexpr double kRoomNameHeight = 160;
constexpr double kSheetTitleHeight = 240;
constexpr double kSheetTitleMargin = 700;

/// The library writes lengths / 100000, which makes hundredths of a millimetre metres, and the size of a font
/// in points / 30. Thirty points are about a centimetre: with everything a hundred times as large, lengths
/// come out in centimetres too and the texts fit.
constexpr int kScale = 100;

/// A length of the plan, in units, as it is exported.
LONG Exported(long long units) {
    if (std::abs(units) > std::numeric_limits<LONG>::max() / kScale)
        throw Failure{MillimetresText(static_cast<long>(units), L',') +
                      L" mm sind für die DXF-Datei zu weit."};
    return static_cast<LONG>(units * kScale);
}

/// Sets the factor by which exported symbols are scaled: that of the last drawing, here one without
/// a surface.
void SetScale(_CSymbol& symbol) {
    LONG ownColours = -1;
    Check(symbol.Draw(0, 0, 0, nullptr, nullptr, 1.0, kScale, &ownColours));
}

void AppendSymbol(const PlacedSymbol& placed, LONG height, _CSymbol& symbol, const Bstr& file) {
    // y grows downwards in the plan and upwards in the file.
    Check(symbol.put_Etagenbreite(height));
    Check(symbol.DxfExportSym(Exported(placed.at.x), Exported(placed.at.y), Radians(placed), file.Get()),
          Describe(placed));
}

/// A place of the sheet in the units of the file.
Position InFile(const Plan& plan, Position place) {
    return {place.x / kMillimetresPerUnit, (plan.height - place.y) / kMillimetresPerUnit};
}

void WriteWalls(const Plan& plan, DxfFile& file) {
    for (const Wall& wall : plan.walls) {
        std::array<Position, 4> corners = Outline(wall);
        std::ranges::transform(corners, corners.begin(),
                               [&](const Position& corner) { return InFile(plan, corner); });
        file.ClosedLine("WAENDE", corners);
    }
}

void WriteTitleAndLabels(const Plan& plan, DxfFile& file) {
    const auto at = [&](double x, double y) { return InFile(plan, {x, y}); };
    file.Text("RAEUME", at(kSheetTitleMargin, kSheetTitleMargin - kSheetTitleHeight / 2),
              kSheetTitleHeight / kMillimetresPerUnit, plan.title, false);
    for (const Room& room : plan.rooms)
        file.Text("RAEUME", at(room.middle.x, room.middle.y + kRoomNameHeight / 2),
                  kRoomNameHeight / kMillimetresPerUnit, room.name, true);
}

void Export(const Arguments& arguments) {
    const std::filesystem::path path = arguments[2];
    const Plan plan = ReadPlan(arguments[1]);
    const Ptr<_CSymbolColl> catalogue = OpenCatalogue(arguments[0]);
    const std::vector<Ptr<_CSymbol>> symbols = FindSymbols(plan, *catalogue.Get());
    // Beside the old file, which stays until the new one is whole.
    UnfinishedFile unfinished(path);
    {
        DxfFile file(unfinished.Path(), DxfFile::New);
        file.Begin(InFile(plan, {static_cast<double>(plan.width), 0}), {"WAENDE", "RAEUME", "SYMBOLE"});
        WriteWalls(plan, file);
        file.Close();
    }
    // The library appends each symbol on its own; the file is closed meanwhile, so nothing of ours
    // comes between.
    const Bstr name(unfinished.Path().wstring());
    for (std::size_t i = 0; i < symbols.size(); ++i) {
        if (i == 0)
            SetScale(*symbols[i].Get());
        AppendSymbol(plan.symbols[i], Exported(plan.height * kUnitsPerMillimetre), *symbols[i].Get(), name);
    }
    DxfFile file(unfinished.Path(), DxfFile::Continue);
    WriteTitleAndLabels(plan, file);
    file.End();
    file.Close();
    if (!unfinished.Finish())
        throw Failure{L"Die Datei lässt sich nicht schreiben: " + path.wstring()};
    PrintLine(std::to_wstring(symbols.size()) + L" Symbole nach " + path.wstring() + L" geschrieben.");
}

} // namespace

int wmain(int count, wchar_t** values) {
    return RunSample(count, values, 3, L"export KATALOGORDNER PLANDATEI PLAN.dxf", Export);
}
