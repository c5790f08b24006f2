#include "automation/qplan/CPlan.h"

#include "automation/objects/host_surface.h"
#include "automation/objects/math_objects.h"
#include "automation/qplan/CPlacement.h"
#include "automation/qplan/CPlacementColl.h"
#include "automation/qplan/plan_picture.h"
#include "automation/qplan/visible_pixels.h"
#include "automation/shared/point_access.h"
#include "com/bstr.h"
#include "com/enumerator.h"
#include "platform/win32/win32_file_system.h"
#include "qplan/export/plan_dxf.h"
#include "qplan/export/plan_svg.h"
#include "qplan/files/plan_file.h"

namespace {

base::FileSystem& Files() {
    static platform::Win32FileSystem files;
    return files;
}

/// Error 5 for a number that is no unit.
qsymbol::DrawingUnit UnitOf(PlanUnitConstants unit) {
    switch (unit) {
    case planMillimetres: return qsymbol::DrawingUnit::Millimetre;
    case planCentimetres: return qsymbol::DrawingUnit::Centimetre;
    case planMetres: return qsymbol::DrawingUnit::Metre;
    }
    base::Raise(base::RunTimeError::InvalidCall);
}

} // namespace

_CPlacement* CPlan::Found(std::optional<std::int32_t> id) {
    return id ? CPlacement::CreateFor(*this, *id).Detach() : nullptr;
}

_CPlacement* CPlan::Found(const qplan::Placement* placement) {
    return placement != nullptr ? CPlacement::CreateFor(*this, placement->id).Detach() : nullptr;
}

STDMETHODIMP CPlan::get_Symbols(_CSymbolColl** value) {
    return Return(
        value, [&] { return com::ComPtr<_CSymbolColl>(symbols_ ? &symbols_->Object() : nullptr).Detach(); });
}

STDMETHODIMP CPlan::putref_Symbols(_CSymbolColl* value) {
    return Do([&] {
        std::shared_ptr<CatalogueSource> source;
        if (value != nullptr)
            source = std::make_shared<CatalogueSource>(*value, library_);
        plan_.SetSymbols(source);
        symbols_ = source;
    });
}

STDMETHODIMP CPlan::get_Count(LONG* value) {
    return Return(value, [&] { return plan_.Count(); });
}

STDMETHODIMP CPlan::get_ItemByPos(LONG lPos, _CPlacement** value) {
    return Return(value, [&] { return Found(plan_.ByPos(lPos)); });
}

STDMETHODIMP CPlan::get_ItemById(LONG lId, _CPlacement** value) {
    return Return(value, [&] { return Found(plan_.ById(lId)); });
}

STDMETHODIMP CPlan::get_NewEnum(IUnknown** value) {
    return Return(value, [&] {
        const auto next = [this](std::uint64_t& cursor, com::ComPtr<IDispatch>& item) {
            const qplan::Placement* const placement = plan_.NextAfter(static_cast<std::int32_t>(cursor));
            if (placement == nullptr)
                return false;
            cursor = static_cast<std::uint64_t>(placement->id);
            item = com::ComPtr<IDispatch>(CPlacement::CreateFor(*this, placement->id).Get());
            return true;
        };
        return com::NewEnumerator(com::ComPtr<IUnknown>(static_cast<_CPlan*>(this)), next).Detach();
    });
}

STDMETHODIMP CPlan::Clear() {
    return Do([&] { plan_.Clear(); });
}

STDMETHODIMP CPlan::Add(BSTR stSymName, LONG lLogX, LONG lLogY, double dAngle, _CPlacement** value) {
    return Return(value, [&] {
        const std::u16string name =
            com::Text(stSymName); // the catalogue may let the host change its variable
        return Found(plan_.Add(name, {{lLogX, lLogY}, dAngle}));
    });
}

STDMETHODIMP CPlan::RemoveById(LONG lId) {
    return Do([&] { plan_.RemoveById(lId); });
}

STDMETHODIMP CPlan::Extent(_CRect** r, VARIANT_BOOL* value) {
    return Return(value, [&] {
        _CRect*& place = com::Out(r);
        const std::optional<qmath::Rect> extent = plan_.Extent(library_->ScreenFactor());
        if (!extent)
            return VARIANT_FALSE;
        // A rectangle that is there already is filled: a caller that passes values only sees it as well.
        if (const com::ComPtr<_CRect> held(place); held)
            SetRect(*held, *extent);
        else
            place = math_objects::NewRect(*extent).Detach();
        return VARIANT_TRUE;
    });
}

STDMETHODIMP CPlan::Draw(IDispatch* ctrl, _CTrans* Trans) {
    return Do([&] {
        if (ctrl == nullptr || Trans == nullptr || plan_.Count() == 0)
            return;
        library_->KeepFactors(qsymbol::kUnscaled.printer, qsymbol::kUnscaled.screen);
        const PlanTransformation transformation(*Trans);
        HostSurface surface(*ctrl);
        plan_.Draw(surface, transformation, VisiblePixels(surface.Context()));
    });
}

STDMETHODIMP CPlan::HitTest(_CTrans* Trans, LONG lScreenX, LONG lScreenY, _CPlacement** value) {
    return Return(value, [&] {
        const PlanTransformation transformation(com::Required(Trans));
        return Found(plan_.HitTest(Look(transformation), {lScreenX, lScreenY}));
    });
}

STDMETHODIMP CPlan::HitRect(_CTrans* Trans, _CRect* ScreenRect, _CPlacementColl** value) {
    return Return(value, [&] {
        const PlanTransformation transformation(com::Required(Trans));
        const com::ComPtr<_CRect> held(ScreenRect);
        const qmath::Rect rect = GetRect(ScreenRect);
        return CPlacementColl::CreateFor(*this, plan_.HitRect(Look(transformation), rect)).Detach();
    });
}

STDMETHODIMP CPlan::CatchPt(float* x, float* y, LONG* XKoord, LONG* YKoord, _CTrans* Trans,
                            SHORT iFangbereich, VARIANT_BOOL* value) {
    return Return(value, [&] {
        float& cursorX = com::Out(x);
        float& cursorY = com::Out(y);
        LONG& worldX = com::Out(XKoord);
        LONG& worldY = com::Out(YKoord);
        const PlanTransformation transformation(com::Required(Trans));
        const auto caught = plan_.CatchPt(Look(transformation), cursorX, cursorY, iFangbereich);
        if (!caught)
            return VARIANT_FALSE;
        cursorX = static_cast<float>(caught->screen.x);
        cursorY = static_cast<float>(caught->screen.y);
        worldX = caught->world.x;
        worldY = caught->world.y;
        return VARIANT_TRUE;
    });
}

STDMETHODIMP CPlan::ReadFromFile(BSTR stFilename) {
    return Do([&] { qplan::ReadPlan(plan_, Files(), com::Text(stFilename)); });
}

STDMETHODIMP CPlan::Write2File(BSTR stFilename) {
    return Do([&] { qplan::WritePlan(plan_, Files(), com::Text(stFilename)); });
}

STDMETHODIMP CPlan::WriteDxf(BSTR stFilename, PlanUnitConstants eUnits) {
    return Do([&] { qplan::WritePlanDxf(plan_, UnitOf(eUnits), Files(), com::Text(stFilename)); });
}

STDMETHODIMP CPlan::WriteSvg(BSTR stFilename) {
    return Do([&] { qplan::WritePlanSvg(plan_, Files(), com::Text(stFilename)); });
}

STDMETHODIMP CPlan::WritePicture(BSTR stFilename, LONG lWidth) {
    return Do([&] { WritePlanPicture(plan_, lWidth, com::Text(stFilename)); });
}
