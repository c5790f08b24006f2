#include "qplan/export/plan_svg.h"

#include "base/whole_file.h"
#include "qmath/math_util.h"
#include "qplan/draw/sheet_drawing.h"
#include "qsymbol/draw/symbol_drawing.h"
#include "qsymbol/geometry/placed_box.h"
#include "qsymbol/geometry/plain_transformation.h"
#include "qsymbol/picture/short_number.h"
#include "qsymbol/svg/svg_document.h"
#include "qsymbol/svg/xml_text.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace qplan {

using qsymbol::SymbolPosition;

namespace {

constexpr std::size_t kPiece = 1 << 16;
constexpr int kDecimals = 3;

/// What a symbol looks like with its reference point at the origin.
struct Drawn {
    bool isUsed = false;
    bool hasOpaqueText = false;
    std::string elements;
    qmath::Box bounds;
};

Drawn DrawAlone(const PlacedSymbol& placed, std::u16string_view name) {
    qsymbol::SvgSurface surface;
    DrawSymbol(*placed.Value(), SymbolPosition(), surface, qsymbol::PlainTransformation(qmath::Transform()),
               qsymbol::kUnscaled);
    Drawn drawn{.isUsed = true, .hasOpaqueText = false, .elements = {}, .bounds = surface.Bounds()};
    drawn.elements = "<title>" + qsymbol::XmlText(name) + "</title>\n";
    drawn.elements += surface.Elements();
    drawn.hasOpaqueText = surface.HasOpaqueText();
    return drawn;
}

class PlanPicture {
public:
    PlanPicture(Plan plan, const base::ByteSink& sink) : plan_(std::move(plan)), sink_(sink) {}

    void Compose() {
        DrawSymbols();
        PutHead();
        PutSheet(&DrawFloors);
        PutSheet(&DrawWalls);
        ForEachPlacement([&](const Placement& placement) { PutUse(placement); });
        PutSheet(&DrawLettering);
        out_ += "</g>\n</svg>\n";
        sink_(out_);
    }

private:
    using DrawPart = void (*)(const Sheet&, qsymbol::Surface&, const qsymbol::Transformation&);

    template <class Work>
    void ForEachPlacement(const Work& work) const {
        for (const Placement* next = plan_.NextAfter(0); next != nullptr; next = plan_.NextAfter(next->id))
            work(*next);
    }

    void DrawSymbols() {
        ForEachPlacement([&](const Placement& placement) {
            if (placement.symbol >= symbols_.size())
                symbols_.resize(placement.symbol + 1);
            Drawn& drawn = symbols_[placement.symbol];
            if (!drawn.isUsed)
                drawn = DrawAlone(*plan_.SymbolOf(placement), plan_.NameOf(placement));
            if (plan_.Sheet().width == 0)
                extent_.Include(qsymbol::PlacedBox(drawn.bounds, placement.position));
        });
    }

    qsymbol::SvgView View() const {
        qsymbol::SvgView view{.width = static_cast<double>(plan_.Sheet().width),
                              .height = static_cast<double>(plan_.Sheet().height)};
        if (plan_.Sheet().width == 0 && !extent_.IsEmpty())
            view = {extent_.left / kUnitsPerMillimetre, extent_.top / kUnitsPerMillimetre,
                    extent_.Width() / kUnitsPerMillimetre, extent_.Height() / kUnitsPerMillimetre};
        view.width = std::max(view.width, 1.0);
        view.height = std::max(view.height, 1.0);
        return view;
    }

    void PutHead() {
        out_ += qsymbol::SvgHead(View(), plan_.Sheet().title);
        out_ += "<defs>";
        if (std::any_of(symbols_.begin(), symbols_.end(),
                        [](const Drawn& drawn) { return drawn.hasOpaqueText; }))
            out_ += qsymbol::kOpaqueTextFilter;
        out_ += "\n";
        for (std::size_t i = 0; i < symbols_.size(); ++i) {
            if (!symbols_[i].isUsed)
                continue;
            out_ += "<g id=\"s" + std::to_string(i) + "\">";
            out_ += symbols_[i].elements;
            out_ += "</g>\n";
            HandOn();
        }
        out_ += "</defs>\n<g ";
        out_ += qsymbol::kSvgGroupAttributes;
        // The namespace of the uses; readers of older versions know no other reference.
        out_ += " xmlns:xlink=\"http://www.w3.org/1999/xlink\">\n";
    }

    void PutSheet(DrawPart draw) {
        qsymbol::SvgSurface surface;
        draw(plan_.Sheet(), surface, qsymbol::PlainTransformation(qmath::Transform()));
        out_ += surface.Elements();
        HandOn();
    }

    void PutUse(const Placement& placement) {
        out_ += "<use xlink:href=\"#s" + std::to_string(placement.symbol) + "\" transform=\"translate(";
        PutMillimetres(placement.position.at.x);
        out_ += ' ';
        PutMillimetres(placement.position.at.y);
        out_ += ')';
        constexpr double kTurn = 360;
        if (const double degrees = std::fmod(qmath::RadToDeg(placement.position.angle), kTurn);
            degrees != 0) {
            // Angles count counter-clockwise, and here y grows downwards too.
            constexpr int kOfADegree = 6;
            out_ += " rotate(";
            qsymbol::AppendShort(out_, -degrees, kOfADegree);
            out_ += ')';
        }
        out_ += "\"/>\n";
        HandOn();
    }
    void PutMillimetres(std::int32_t units) {
        qsymbol::AppendShort(out_, static_cast<double>(units) / kUnitsPerMillimetre, kDecimals);
    }

    void HandOn() {
        if (out_.size() < kPiece)
            return;
        sink_(out_);
        out_.clear();
    }

    Plan plan_; ///< a copy: what the host's symbols do to the plan meanwhile is no matter of this picture
    const base::ByteSink& sink_;
    std::vector<Drawn> symbols_; ///< by Placement::symbol
    qmath::Box extent_;          ///< of all symbols, in logical units
    std::string out_;
};

} // namespace

void ComposePlanSvg(const Plan& plan, const base::ByteSink& sink) {
    PlanPicture(plan, sink).Compose();
}

void WritePlanSvg(const Plan& plan, base::FileSystem& files, const std::u16string& path) {
    base::WriteBeside(files, path, [&](const base::ByteSink& sink) { ComposePlanSvg(plan, sink); });
}

} // namespace qplan
