#pragma once

#include "golden/host.h"
#include "support/automation_test.h"
#include "support/message_boxes.h"
#include "support/number_settings.h"
#include "support/picture_box.h"
#include "support/shapes.h"
#include "support/temp_folder.h"

#include <optional>

namespace golden {

/// How a host calls the library.
enum class Road { VirtualTable, LateBound };

/// Plays cases on the public classes, with files in a folder of its own and a host's picture box.
class ComHost final : public Host {
public:
    explicit ComHost(Road road);
    ~ComHost() override;

    Lines Do(const Step& step) override;
    /// Of a drawing the properties and methods of the control; what goes to the device context is not seen.
    bool Sees(const std::string& output) const override;

private:
    using Failure = support::Failure;

    Failure Act(const Step& step);
    bool ActOnFiles(const Step& step);
    std::optional<Failure> ActOnSymbol(const Step& step);
    std::optional<Failure> ActOnSurface(const Step& step);
    std::optional<Failure> ActOnPlaces(const Step& step);

    bool Late() const { return road_ == Road::LateBound; }
    /// A call by name whose result is of no interest or is looked at by the caller.
    Failure Call(const wchar_t* member, const std::vector<support::Value>& arguments);
    Failure Load(const Step& step);
    Failure Export(const Step& step);
    Failure DrawElements(const Step& step);
    Failure Draw(const Step& step);
    Failure Catch(const Step& step);
    Failure Bounds(const Step& step);
    Failure Hit(const Step& step);
    void Draw(double printer, double screen) const;
    std::string Told(const Failure& failure) const;
    std::string Told(const support::Box& box) const;
    std::wstring PathOf(const std::string& name) const;

    Road road_;
    support::TempFolder folder_;
    std::vector<std::wstring> inner_; ///< folders within the folder
    std::optional<support::NumberSettings> settings_;
    support::Ref<_CSymbol> symbol_ = support::NewSymbol();
    support::Canvas canvas_;
    support::Ref<support::PictureBox> box_;
    support::Ref<_CTrans> trans_ = support::NewTrans(10);
    Lines outputs_;
    std::string failing_;
    LONG drawMode_ = R2_COPYPEN;
};

} // namespace golden
