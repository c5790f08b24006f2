#pragma once

#include <windows.h>

/// Fonts and lengths of the palette for a resolution. Colours are mixed from the desktop's.
class PaletteLook {
public:
    explicit PaletteLook(UINT dots);
    ~PaletteLook();
    PaletteLook(const PaletteLook&) = delete;

    HFONT Font() const { return font_; }
    HFONT Bold() const { return bold_; }
    HFONT Small() const { return small_; }
    int LineHeight() const { return lineHeight_; }
    int SmallLineHeight() const { return smallLineHeight_; }
    /// A length in pixels of a screen of 100 %.
    int Pixels(int length) const;

    static COLORREF Paper() { return GetSysColor(COLOR_WINDOW); }
    static COLORREF Text() { return GetSysColor(COLOR_WINDOWTEXT); }
    /// Less important text; it stands out from the paper enough to be read.
    static COLORREF Faint() { return Mixed(Text(), Paper(), 62); }
    static COLORREF Line() { return Mixed(Text(), Paper(), 14); }
    static COLORREF Frame() { return Mixed(Text(), Paper(), 50); }
    static COLORREF Hover() { return Mixed(GetSysColor(COLOR_HIGHLIGHT), Paper(), 8); }
    static COLORREF Selected() { return Mixed(GetSysColor(COLOR_HIGHLIGHT), Paper(), 20); }
    static COLORREF Border() { return Mixed(GetSysColor(COLOR_HIGHLIGHT), Paper(), 75); }
    static COLORREF Star() { return RGB(226, 156, 16); }

private:
    /// So many hundredths of one colour, the rest of another.
    static COLORREF Mixed(COLORREF one, COLORREF other, int hundredths);

    UINT dots_;
    HFONT font_;
    HFONT bold_;
    HFONT small_;
    int lineHeight_;
    int smallLineHeight_;
};
