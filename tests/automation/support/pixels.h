#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace support {

/// A picture in memory with a device context: 32 bits a pixel, top row first, filled with a pattern in which
/// neighbours differ, so that a background that should be left alone shows.
class Canvas {
public:
    static constexpr int kSize = 240;

    explicit Canvas(int width = kSize, int height = kSize);
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    ~Canvas();

    HDC Dc() const { return recorder_ != nullptr ? recorder_ : dc_; }
    /// What is drawn goes to another device context; nullptr: here again.
    void RecordOn(HDC recorder) { recorder_ = recorder; }
    int Width() const { return width_; }
    int Height() const { return height_; }

    /// Pattern, stock objects and modes as in the beginning.
    void Reset();
    /// The colours, row by row.
    std::vector<std::uint32_t> Pixels() const;

    /// Pen and brush for the reference pictures; they live as long as the canvas has no others.
    void UsePen(int style, int width, COLORREF colour);
    void UseBrush(COLORREF colour);
    void UseNoBrush();
    /// A font of a character height in pixels, turned by tenths of a degree.
    void UseFont(int height, int escapement = 0, const wchar_t* name = L"Arial", int weight = FW_NORMAL,
                 bool italic = false, bool underline = false, bool strikethrough = false);

private:
    void Use(HGDIOBJ& current, HGDIOBJ next);

    int width_;
    int height_;
    HDC dc_;
    HDC recorder_ = nullptr;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ previous_ = nullptr;
    std::uint32_t* bits_ = nullptr;
    int start_ = 0; ///< the saved state of the device context
    HGDIOBJ pen_ = nullptr;
    HGDIOBJ brush_ = nullptr;
    HGDIOBJ font_ = nullptr;
};

/// Every pixel has the same colour; else tells how many differ and where the first one is.
testing::AssertionResult SamePicture(const Canvas& drawn, const Canvas& expected);

/// At least one pixel differs from the pattern of the beginning.
bool IsDrawnOn(const Canvas& canvas);

} // namespace support
