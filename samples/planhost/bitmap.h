#pragma once

#include <windows.h>

#include <string>

/// A white memory bitmap, 24 bits a pixel, with a device context that draws on it.
class Bitmap {
public:
    Bitmap(int width, int height);
    ~Bitmap();
    Bitmap(const Bitmap&) = delete;

    HDC Dc() const { return dc_; }
    int Width() const { return width_; }
    int Height() const { return height_; }

    /// The pixels, row by row from the top: blue, green, red; rows are padded to four bytes. After GdiFlush they are as drawn.
    BYTE* Bits() { return bits_; }
    const BYTE* Bits() const { return bits_; }

    void SavePng(const std::wstring& path) const;

private:
    int width_;
    int height_;
    HDC dc_;
    HBITMAP bitmap_;
    HGDIOBJ previous_;
    BYTE* bits_ = nullptr;
};
