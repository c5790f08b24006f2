#pragma once

#include "library_tool.h"

/// Places a new symbol of the catalogue.
class PlacingTool final : public LibraryTool<_CSymInput> {
public:
    /// name: of a symbol of the catalogue; degrees: its first direction; guideFrom: where the line to the
    /// symbol starts, in units.
    PlacingTool(_CSymbolColl& catalogue, const std::wstring& name, double degrees,
                std::optional<POINT> guideFrom);

    void MouseDown(PlanView& view, const Pointer& pointer) override;
    void KeyUp(PlanView& view, WPARAM key, LPARAM info) override;
    void Finish(PlanDocument& document) override;
    std::optional<double> Direction() const override;
    std::wstring Hint() const override;

private:
    std::wstring name_;
    std::optional<POINT> caught_;
};
