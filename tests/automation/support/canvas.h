#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace support {

/// A memory device context over a bitmap of 32-bit pixels, white at first.
class Canvas {
public:
    Canvas(int width, int height);
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    ~Canvas();

    HDC Context() const { return context_; }
    int Width() const { return width_; }
    int Height() const { return height_; }

    /// Fills with the same colours at the same places, so that an inverting image has something to invert.
    void FillWithPattern();
    /// 0x00RRGGBB for every pixel, line by line from the top.
    std::vector<std::uint32_t> Pixels() const;
    std::uint32_t Pixel(int x, int y) const;
    /// Number of pixels that are not white.
    int Drawn() const;

private:
    int width_;
    int height_;
    HDC context_;
    HBITMAP bitmap_;
    HGDIOBJ previous_;
    const std::uint32_t* bits_ = nullptr;
};

/// Success when both pictures are equal; otherwise tells how many pixels differ and where the first is.
testing::AssertionResult SamePicture(const Canvas& actual, const Canvas& expected);

} // namespace support
