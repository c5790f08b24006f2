// drawing_readers FILE.dxf
// Reads a drawing with dxflib and with dime and writes what each of them found, a line "READER KIND COUNT" for each kind.

#include <dime/Input.h>
#include <dime/Model.h>
#include <dime/State.h>
#include <dime/entities/Entity.h>
#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>

#include <iostream>
#include <map>
#include <string>

namespace {

using Counts = std::map<std::string, int>;

/// Counts what dxflib tells of.
class Counter final : public DL_CreationAdapter {
public:
    Counts counts;

    void addBlock(const DL_BlockData& data) override {
        counts[data.name.starts_with('*') ? "SPACE" : "BLOCK"]++;
    }
    void addLayer(const DL_LayerData& /*data*/) override { counts["LAYER"]++; }
    void addTextStyle(const DL_StyleData& /*data*/) override { counts["STYLE"]++; }
    void addInsert(const DL_InsertData& /*data*/) override { counts["INSERT"]++; }
    void addLine(const DL_LineData& /*data*/) override { counts["LINE"]++; }
    void addPolyline(const DL_PolylineData& /*data*/) override { counts["LWPOLYLINE"]++; }
    void addArc(const DL_ArcData& /*data*/) override { counts["ARC"]++; }
    void addCircle(const DL_CircleData& /*data*/) override { counts["CIRCLE"]++; }
    void addText(const DL_TextData& /*data*/) override { counts["TEXT"]++; }
    void addHatch(const DL_HatchData& /*data*/) override { counts["HATCH"]++; }
};

bool CountEntity(const dimeState* /*state*/, dimeEntity* entity, void* counts) {
    ++(*static_cast<Counts*>(counts))[entity->getEntityName()];
    return true;
}

bool Print(const char* reader, bool read, const Counts& counts) {
    for (const auto& [kind, count] : counts)
        std::cout << reader << ' ' << kind << ' ' << count << '\n';
    if (!read)
        std::cerr << reader << " cannot read the file\n";
    return read;
}

} // namespace

int main(int count, char** values) {
    if (count != 2)
        return 2;
    Counter counter;
    const bool byDxflib = Print("dxflib", DL_Dxf().in(values[1], &counter), counter.counts);

    dimeInput input;
    dimeModel model;
    Counts counts;
    const bool opened = input.setFile(values[1]) && model.read(&input);
    if (opened) // blocks and the model space as they stand, inserts not taken apart
        model.traverseEntities(CountEntity, &counts, true, false, false);
    return Print("dime", opened, counts) && byDxflib ? 0 : 1;
}
