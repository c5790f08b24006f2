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

    void SavePng(const std::wstring& path) const;

private:
    int width_;
    int height_;
    HDC dc_;
    HBITMAP bitmap_;
    HGDIOBJ previous_;
    BYTE* bits_ = nullptr;
};
