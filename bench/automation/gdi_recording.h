#pragma once

#include <windows.h>

#include <QSymbol.h>

#include <string>
#include <vector>

/// The bare GDI calls that draw one placed symbol, with ready-made coordinates: what drawing costs at least.
class GdiRecording {
public:
    struct Placement {
        LONG x;
        LONG y;
        double angle;
        double scale; ///< world units to a pixel
    };

    /// Works the coordinates out once, from the symbol's public elements.
    GdiRecording(_CSymbol& symbol, const Placement& placement);

    void Play(HDC context) const;
    /// The same with texts as filled paths, which follow the context's raster operation.
    void PlayInverted(HDC context) const;

private:
    struct Call {
        LONG type = 0;
        bool closed = false;
        std::vector<POINT> points;
        RECT box{};
        LONG align = 0;
        LONG bkMode = 0;
        LOGFONTW font{};
        std::string text;
    };

    void Play(HDC context, void (*writeText)(HDC context, const Call& call)) const;

    std::vector<Call> calls_;
};
