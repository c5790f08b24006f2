#pragma once

#include "golden/com_files.h"
#include "golden/com_surface.h"
#include "golden/host.h"
#include "support/message_boxes.h"

#include <optional>

namespace golden {

/// Plays cases on the public classes, with files in a folder of its own and a host's picture box.
class ComHost final : public Host {
public:
    explicit ComHost(Road road);
    ~ComHost() override;

    Lines Do(const Step& step) override;
    /// Of a drawing the properties and methods of the control; what goes to the device context is not seen.
    bool Sees(const std::string& output) const override;

private:
    support::Failure Act(const Step& step);
    std::optional<support::Failure> ActOnSymbol(const Step& step);
    support::Failure Export(const Step& step);
    std::string Told(const support::Failure& failure) const;
    std::string Told(const support::Box& box) const;

    ComFiles files_;
    ComSubject subject_;
    ComSurface surface_;
    Lines outputs_;
};

} // namespace golden
