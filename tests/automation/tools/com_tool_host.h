#pragma once

#include "interactions/tool_host.h"
#include "support/message_boxes.h"
#include "support/picture_box.h"
#include "support/shapes.h"

#include <map>
#include <vector>

namespace tools {

/// How a host calls the library.
enum class Road { VirtualTable, LateBound };

/// Plays scripts on the public tool classes, with a host's picture box.
class ComToolHost final : public interactions::ToolHost {
public:
    explicit ComToolHost(Road road) : road_(road) {}

    void SetUp(const interactions::Words& line) override;
    interactions::Outcome Perform(const interactions::Event& event) override;
    std::vector<std::string> TakeAccesses() override;
    /// The properties and methods of the control; what goes to the device context is not seen.
    bool Sees(const std::string& access) const override;
    bool SeesSilentErrors() const override { return false; }

private:
    support::Ref<_CSymbol> Symbol(const std::string& name);
    void Start();
    support::Failure Act(const interactions::Words& event, std::string& answer);
    support::Failure ActLate(const interactions::Words& event, std::string& answer);
    std::string State();

    struct SymbolSpec {
        POINT reference{};
        std::vector<support::ElementSpec> elements;
    };

    Road road_;
    bool group_ = false;
    std::vector<interactions::Words> references_;
    std::string placed_; ///< the name of the symbol that an input places
    std::map<std::string, SymbolSpec> specs_;
    std::map<std::string, support::Ref<_CSymbol>> symbols_;
    support::Canvas canvas_;
    support::Ref<support::PictureBox> box_ = support::PictureBox::Create(canvas_);
    support::Ref<_CTrans> trans_;
    double scale_ = 1;
    std::string failing_;
    support::Ref<_CSymInput> input_;
    support::Ref<_CSymTool> tool_;
};

} // namespace tools
