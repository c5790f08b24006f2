#pragma once

#include <windows.h>

#include <array>
#include <cstddef>

/// The drawing properties of a surface, as picture boxes have them: each takes effect on the device context at
/// once, because drawings go on with plain GDI calls there. The context outlives them and has nothing of them at
/// their end.
class DrawingTools {
public:
    enum Property : std::size_t { DrawMode, ForeColor, FillColor, FillStyle, DrawStyle, DrawWidth };

    explicit DrawingTools(HDC context);
    DrawingTools(const DrawingTools&) = delete;
    DrawingTools& operator=(const DrawingTools&) = delete;
    ~DrawingTools();

    LONG Get(Property property) const { return values_[property]; }
    /// Error 5 for a value that the property cannot have, 7 when the GDI has no room for a pen or brush; it is as
    /// before then.
    void Put(Property property, LONG value);
    /// In the pen and the mode of the moment, without the last pixel.
    void Line(POINT from, POINT to) const;

private:
    struct Bare {
        HDC context;
    };
    explicit DrawingTools(Bare bare) : context_(bare.context) {}
    void Apply(Property property);
    void UsePen();
    void UseBrush();
    void Use(HGDIOBJ& current, HGDIOBJ next);

    HDC context_;
    std::array<LONG, DrawWidth + 1> values_{R2_COPYPEN, 0, 0, 1, 0, 1};
    HGDIOBJ pen_ = nullptr;
    HGDIOBJ brush_ = nullptr;
};
