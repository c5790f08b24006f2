#include "qsymbol/geometry/placed_box.h"

#include "qsymbol/geometry/turn.h"

#include <initializer_list>

namespace qsymbol {

qmath::Box SeenFrom(qmath::Point point, const qmath::Box& box) {
    return {box.left - point.x, box.top - point.y, box.right - point.x, box.bottom - point.y};
}

qmath::Box PlacedBox(const qmath::Box& box, const SymbolPosition& position) {
    qmath::Box placed;
    if (box.IsEmpty())
        return placed;
    const Turn& turn = TurnBy(position.angle);
    for (const double x : {box.left, box.right})
        for (const double y : {box.top, box.bottom})
            placed.Include(position.at.x + turn.cosine * x + turn.sine * y,
                           position.at.y + turn.cosine * y - turn.sine * x);
    return placed;
}

} // namespace qsymbol
