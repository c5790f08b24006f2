#pragma once

#include "automation/qplan/catalogue_source.h"
#include "automation/qplan/plan_transformation.h"
#include "com/dual_object.h"
#include "qplan/plan/plan.h"

#include <QPlan.h>

#include <memory>
#include <optional>

/// Public class CPlan: placed symbols and the questions over all of them.
class CPlan final : public com::DualObject<CPlan, _CPlan> {
public:
    qplan::Plan& Value() { return plan_; }

    STDMETHODIMP get_Symbols(_CSymbolColl** value) override;
    STDMETHODIMP putref_Symbols(_CSymbolColl* value) override;
    STDMETHODIMP get_Count(LONG* value) override;
    STDMETHODIMP get_ItemByPos(LONG lPos, _CPlacement** value) override;
    STDMETHODIMP get_ItemById(LONG lId, _CPlacement** value) override;
    STDMETHODIMP get_NewEnum(IUnknown** value) override;
    STDMETHODIMP Clear() override;
    STDMETHODIMP Add(BSTR stSymName, LONG lLogX, LONG lLogY, double dAngle, _CPlacement** value) override;
    STDMETHODIMP RemoveById(LONG lId) override;
    STDMETHODIMP Extent(_CRect** r, VARIANT_BOOL* value) override;
    STDMETHODIMP Draw(IDispatch* ctrl, _CTrans* Trans) override;
    STDMETHODIMP HitTest(_CTrans* Trans, LONG lScreenX, LONG lScreenY, _CPlacement** value) override;
    STDMETHODIMP HitRect(_CTrans* Trans, _CRect* ScreenRect, _CPlacementColl** value) override;
    STDMETHODIMP CatchPt(float* x, float* y, LONG* XKoord, LONG* YKoord, _CTrans* Trans, SHORT iFangbereich,
                         VARIANT_BOOL* value) override;
    STDMETHODIMP ReadFromFile(BSTR stFilename) override;
    STDMETHODIMP Write2File(BSTR stFilename) override;
    STDMETHODIMP WriteDxf(BSTR stFilename, PlanUnitConstants eUnits) override;
    STDMETHODIMP WriteSvg(BSTR stFilename) override;
    STDMETHODIMP WritePicture(BSTR stFilename, LONG lWidth) override;

private:
    qplan::View Look(const PlanTransformation& transformation) const {
        return {transformation, library_->ScreenFactor()};
    }
    _CPlacement* Found(std::optional<std::int32_t> id);
    _CPlacement* Found(const qplan::Placement* placement);

    std::shared_ptr<SymbolLibrary> library_ = std::make_shared<SymbolLibrary>();
    std::shared_ptr<CatalogueSource> symbols_;
    qplan::Plan plan_;
};
