#pragma once

#include "library_tool.h"

/// Places a new symbol of the catalogue.
class PlacingTool final : public LibraryTool<_CSymInput> {
public:
    /// name: of a symbol of the catalogue; degrees: its first direction; from: where the symbol before was placed, in
    /// units: a line leads from there to this one.
    PlacingTool(_CSymbolColl& catalogue, const std::wstring& name, double degrees, std::optional<POINT> from);

    void MouseDown(PlanView& view, const Pointer& pointer) override;
    void Turn(PlanView& view, const TurnKey& key) override;
    void MoveTo(PlanView& view, POINT to, bool isRelative) override;
    void Finish(PlanDocument& document) override;
    std::optional<double> Direction() const override;
    std::wstring Hint() const override;

private:
    std::wstring name_;
    POINT from_;
    std::optional<POINT> exact_;
};
