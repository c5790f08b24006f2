#pragma once

#include "interactions/tool_host.h"
#include "qsymbol/tools/symbol_input.h"
#include "qsymbol/tools/symbol_tool.h"
#include "support/recording_surface.h"
#include "unit/qsymbol/tools/value_symbol.h"

#include <functional>
#include <map>
#include <memory>

namespace tools {

/// Plays scripts on the tools themselves, with a surface that records everything.
class NativeToolHost final : public interactions::ToolHost {
public:
    void SetUp(const interactions::Words& line) override;
    interactions::Outcome Perform(const interactions::Event& event) override;
    std::vector<std::string> TakeAccesses() override;
    bool Sees(const std::string& /*access*/) const override { return true; }
    bool SeesSilentErrors() const override { return true; }

private:
    std::string Act(const interactions::Words& event, qsymbol::DrawingTarget& target);
    std::string ActOnGroup(const interactions::Words& event, qsymbol::DrawingTarget& target);
    qsymbol::PlacingTool& Tool();
    std::string State();
    std::string WayOfErrors(const std::string& member) const;

    bool group_ = false;
    double scale_ = 1;
    support::RecordingSurface surface_;
    std::map<std::string, std::shared_ptr<ValueSymbol>> symbols_;
    qsymbol::SymbolInput input_;
    qsymbol::SymbolTool groupTool_;
};

} // namespace tools
