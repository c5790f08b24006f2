#pragma once

#include "qsymbol/geometry/plain_transformation.h"

namespace support {

/// A map that only an object knows, as a host's: every question goes through the contract.
class OpaqueTransformation final : public qsymbol::Transformation {
public:
    explicit OpaqueTransformation(const qmath::Transform& transform) : plain_(transform) {}

    void WorldToScreen(qmath::Point& point) const override {
        ++calls;
        plain_.WorldToScreen(point);
    }
    void ScreenToWorld(qmath::Point& point) const override { plain_.ScreenToWorld(point); }
    std::int32_t LengthToScreen(std::int32_t length) const override { return plain_.LengthToScreen(length); }
    std::int32_t FontSizeToScreen(double factor, std::int16_t size) const override {
        return plain_.FontSizeToScreen(factor, size);
    }

    mutable int calls = 0; ///< of WorldToScreen

private:
    qsymbol::PlainTransformation plain_;
};

} // namespace support
