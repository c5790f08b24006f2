#include "automation/qplan/plan_picture.h"

#include "automation/objects/host_surface.h"
#include "automation/objects/math_objects.h"
#include "automation/qplan/CPicture.h"
#include "automation/qplan/picture_file.h"
#include "automation/qplan/plan_transformation.h"
#include "base/checked.h"
#include "platform/win32/gdi_text_measure.h"
#include "qplan/draw/sheet_drawing.h"
#include "qsymbol/draw/symbol_extent.h"
#include "qsymbol/geometry/placed_box.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <unordered_map>
#include <utility>

namespace {

/// What a picture shows, in logical units.
struct Frame {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

/// Around what the placed symbols draw, whatever their boxes are.
qmath::Box DrawnBox(const qplan::Plan& plan) {
    struct Known {
        std::shared_ptr<const qplan::PlacedSymbol> held;
        qmath::Box extent; ///< from the reference point
    };
    std::unordered_map<const qplan::PlacedSymbol*, Known> known;
    const platform::GdiTextMeasure texts;
    qmath::Box box;
    for (const qplan::Placement* next = plan.NextAfter(0); next != nullptr;) {
        const qplan::Placement placed = *next; // asking a symbol of the host may change the plan
        Known& symbol = known[plan.SymbolOf(placed).get()];
        if (symbol.held == nullptr) {
            symbol.held = plan.SymbolOf(placed);
            const auto value = symbol.held->Value();
            const qmath::Rect own = SymbolExtent(*value, &texts);
            symbol.extent = qsymbol::SeenFrom(
                Reference(*value), {static_cast<double>(own.left), static_cast<double>(own.top),
                                    static_cast<double>(own.right), static_cast<double>(own.bottom)});
        }
        box.Include(qsymbol::PlacedBox(symbol.extent, placed.position));
        next = plan.NextAfter(placed.id);
    }
    return box;
}

Frame FrameOf(const qplan::Plan& plan) {
    const qplan::Sheet& sheet = plan.Sheet();
    if (sheet.width > 0)
        return {0, 0, static_cast<double>(sheet.width) * qplan::kUnitsPerMillimetre,
                static_cast<double>(sheet.height) * qplan::kUnitsPerMillimetre};
    const qmath::Box box = DrawnBox(plan);
    if (box.IsEmpty())
        base::Raise(base::RunTimeError::InvalidCall);
    const double left = std::floor(box.left);
    const double top = std::floor(box.top);
    // One unit at least: symbols may be flat.
    return {left, top, std::max(std::ceil(box.right) - left, 1.0),
            std::max(std::ceil(box.bottom) - top, 1.0)};
}

void DrawOn(CPicture& picture, const qplan::Plan& plan, _CTrans& trans) {
    const PlanTransformation transformation(trans);
    HostSurface surface(picture);
    DrawFloors(plan.Sheet(), surface, transformation);
    DrawWalls(plan.Sheet(), surface, transformation);
    plan.Draw(surface, transformation, std::nullopt);
    DrawLettering(plan.Sheet(), surface, transformation);
}

/// A metafile while it is recorded.
class Recorder {
public:
    Recorder(std::int32_t width, std::int32_t height) : context_(platform::NewMetafile(width, height)) {
        if (context_ == nullptr)
            base::Raise(base::RunTimeError::OutOfMemory);
    }
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;
    ~Recorder() {
        if (context_ != nullptr)
            DeleteEnhMetaFile(CloseEnhMetaFile(context_));
    }

    HDC Context() const { return context_; }
    std::string Take() { return platform::TakeMetafile(CloseEnhMetaFile(std::exchange(context_, nullptr))); }

private:
    HDC context_;
};

/// A recording lets its device context go before that is closed, whoever still holds the picture.
class Recording {
public:
    Recording(HDC context, std::int32_t width, std::int32_t height)
        : picture_(CPicture::CreateRecording(context, width, height)) {}
    Recording(const Recording&) = delete;
    Recording& operator=(const Recording&) = delete;
    ~Recording() { picture_->Finish(); }

    CPicture& Picture() const { return *picture_; }

private:
    com::ComPtr<CPicture> picture_;
};

} // namespace

void WritePlanPicture(const qplan::Plan& plan, std::int32_t width, const std::u16string& path) {
    const PictureFormat format = PictureFormatOf(path);
    if (width < 1)
        base::Raise(base::RunTimeError::InvalidCall);
    const Frame frame = FrameOf(plan);
    const double scale = frame.width / width;
    // What is too high for any memory is told so by the picture.
    const double fits = std::min<double>(frame.height / scale, std::numeric_limits<std::int32_t>::max());
    const std::int32_t height = std::max(base::RoundToLong(fits), 1);
    const com::ComPtr<_CTrans> trans = math_objects::NewTrans(scale);
    com::Call(*trans, &_CTrans::SetOffsetX, base::RoundToLong(frame.left));
    com::Call(*trans, &_CTrans::SetOffsetY, base::RoundToLong(frame.top));
    if (format == PictureFormat::Emf) {
        Recorder recorder(width, height);
        {
            const Recording recording(recorder.Context(), width, height);
            DrawOn(recording.Picture(), plan, *trans);
        }
        return WritePictureContent(recorder.Take(), path);
    }
    const com::ComPtr<CPicture> picture = CPicture::CreateBlank(width, height);
    DrawOn(*picture.Get(), plan, *trans);
    WritePictureFile(picture->Bitmap(), path);
}
