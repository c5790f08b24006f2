#pragma once

#include "golden/host.h"
#include "qsymbol/catalog/catalog_sink.h"
#include "qsymbol/geometry/placement.h"
#include "qsymbol/geometry/plain_transformation.h"
#include "qsymbol/model/keyed_list.h"
#include "support/recording_surface.h"
#include "support/test_environment.h"

#include <memory>

namespace golden {

/// Plays cases on the portable core, with files in memory.
class NativeHost final : public Host {
public:
    NativeHost();

    Lines Do(const Step& step) override;
    bool Sees(const std::string&) const override { return true; }

private:
    void Act(const Step& step);
    bool ActOnFiles(const Step& step);
    bool ActOnSymbol(const Step& step);
    bool ActOnSurface(const Step& step);
    bool ActOnPlaces(const Step& step);

    void Answer(const Lines& answers);
    std::string& File(const std::string& name);
    void Load(const Step& step);
    void Export(const Step& step);
    std::string Told(const base::Error& error) const;

    support::TestEnvironment world_;
    qsymbol::FileEnvironment environment_ = world_.InMemory();
    qsymbol::Symbol symbol_;
    support::RecordingSurface surface_;
    qsymbol::PlainTransformation transformation_;
    double screenFactor_ = 0; ///< of the last drawing
    std::unique_ptr<base::File> leftOpen_;
    Lines outputs_;
};

} // namespace golden
