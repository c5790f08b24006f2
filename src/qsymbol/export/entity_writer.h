#pragma once

#include "base/code_page.h"
#include "qsymbol/export/tag_sink.h"
#include "qsymbol/geometry/placement.h"
#include "qsymbol/model/element_record.h"

#include <cstdint>

namespace qsymbol {

/// Writes the elements of one placed symbol as DXF entities on the layer "SYMBOLE".
///
/// A logical coordinate x is written as x / 100000, a y mirrored as (etagenbreite − y) / 100000.
class EntityWriter {
public:
    EntityWriter(TagSink& out, const base::CodePage& codePage, const Placement& placement,
                 std::int32_t etagenbreite)
        : out_(out), codePage_(codePage), placement_(placement), etagenbreite_(etagenbreite) {}

    /// Writes one element: POLYLINE, ARC or TEXT; nothing for an undefined one and for one without the points
    /// that it is drawn from. Error 6 when a number leaves its range, 91 for a text without a font.
    void Write(const ElementRecord& element);

private:
    void WritePoly(const ElementRecord& element);
    void WriteVertex(qmath::Point point);
    void WriteRound(const ElementRecord& element);
    void WriteText(const ElementRecord& element);

    TagSink& out_;
    const base::CodePage& codePage_;
    Placement placement_;
    std::int32_t etagenbreite_;
};

} // namespace qsymbol
