#include "support/plan_oracle.h"

#include "qplan/export/plan_dxf.h"
#include "qplan/export/plan_svg.h"
#include "qplan/files/plan_file.h"
#include "qplan/model/own_symbol.h"
#include "support/allocation_counter.h"
#include "support/caught.h"
#include "support/sample_symbols.h"
#include "support/xml_fault.h"

#include <algorithm>

namespace support {

namespace {

constexpr std::size_t kBudget = 64U << 20;
constexpr std::size_t kBudgetPerByte = 64;
/// Larger plans are read and written only.
constexpr std::int32_t kDrawn = 2000;

/// Has every symbol whose name is not too long.
class ShortNames final : public qplan::SymbolSource {
public:
    std::shared_ptr<const qplan::PlacedSymbol> Find(std::u16string_view name) override {
        constexpr std::size_t kLongest = 20;
        return name.size() <= kLongest ? symbol_ : nullptr;
    }
    std::uint64_t Edition() const override { return 0; }

private:
    std::shared_ptr<const qplan::PlacedSymbol> symbol_ = std::make_shared<qplan::OwnSymbol>(EveryField());
};

qplan::Plan Empty() {
    qplan::Plan plan;
    plan.SetSymbols(std::make_shared<ShortNames>());
    return plan;
}

bool AreAlike(const qplan::Plan& a, const qplan::Plan& b) {
    if (a.Count() != b.Count() || a.Sheet().title != b.Sheet().title || a.Sheet().width != b.Sheet().width ||
        a.Sheet().floors.size() != b.Sheet().floors.size() ||
        a.Sheet().walls.size() != b.Sheet().walls.size() || a.Sheet().rooms.size() != b.Sheet().rooms.size())
        return false;
    for (std::int32_t position = 1; position <= a.Count(); ++position) {
        const qplan::Placement& one = *a.ByPos(position);
        const qplan::Placement& other = *b.ByPos(position);
        if (a.NameOf(one) != b.NameOf(other) || one.position.at != other.position.at ||
            one.position.angle != other.position.angle)
            return false;
    }
    return true;
}

std::string BrokenDrawing(const qplan::Plan& plan) {
    std::string svg;
    const Caught picture =
        CaughtFrom([&] { ComposePlanSvg(plan, [&](std::string_view piece) { svg += piece; }); });
    const Caught drawing =
        CaughtFrom([&] { ComposePlanDxf(plan, qsymbol::DrawingUnit::Millimetre, [](std::string_view) {}); });
    if ((picture.number != 0 && picture.number != 6) || (drawing.number != 0 && drawing.number != 6))
        return "errors of drawing";
    return picture.number == 0 ? XmlFault(svg) : "";
}

} // namespace

std::string BrokenPlanPromise(std::string_view bytes) {
    qplan::Plan plan = Empty();
    Caught caught;
    {
        const AllocationCounter memory;
        caught = CaughtFrom([&] { DecodePlan(plan, bytes); });
        if (memory.Peak() > kBudget + kBudgetPerByte * bytes.size())
            return "memory";
    }
    if (caught.number != 0) {
        if (caught.number != 5 && caught.number != qplan::kInvalidFileFormat)
            return "error " + std::to_string(caught.number);
        if (!caught.description.starts_with(u"Zeile ") && !caught.description.starts_with(u"Im Plan fehlt"))
            return "what is wrong";
        return plan.Count() == 0 && plan.Sheet().width == 0 ? "" : "the plan as it was";
    }
    const std::string written = EncodePlan(plan);
    qplan::Plan again = Empty();
    if (CaughtFrom([&] { DecodePlan(again, written); }).number != 0 || !AreAlike(plan, again))
        return "reading what was written";
    if (EncodePlan(again) != written)
        return "writing it once more";
    return plan.Count() <= kDrawn ? BrokenDrawing(plan) : "";
}

} // namespace support
