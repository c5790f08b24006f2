#include "palette_thumbnails.h"

#include "../picture_box.h"
#include "../text.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr std::size_t kMost = 600; // a few windows full
constexpr int kFiner = 3;          // a pixel is the mean of so many by so many
constexpr int kBorder = 5;         // pixels round the symbol

/// A white bitmap of 32 bits a pixel with a device context.
class Canvas32 {
public:
    explicit Canvas32(int side) : dc_(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, side, -side, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        bitmap_ =
            CreateDIBSection(dc_, &info, DIB_RGB_COLORS, reinterpret_cast<void**>(&pixels_), nullptr, 0);
        if (bitmap_ == nullptr) {
            DeleteDC(dc_);
            throw Failure{L"Für das Bild reicht der Speicher nicht."};
        }
        previous_ = SelectObject(dc_, bitmap_);
        PatBlt(dc_, 0, 0, side, side, WHITENESS);
    }
    ~Canvas32() {
        SelectObject(dc_, previous_);
        DeleteObject(bitmap_);
        DeleteDC(dc_);
    }
    Canvas32(const Canvas32&) = delete;

    HDC Dc() const { return dc_; }
    const DWORD* Pixels() const { return pixels_; }

private:
    HDC dc_;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ previous_ = nullptr;
    DWORD* pixels_ = nullptr;
};

/// Draws the symbol into the middle of the canvas: the library fits it from the left top of a box, and a box of the
/// symbol's own shape has no room to spare.
void DrawInMiddle(_CSymbol& symbol, HDC dc, int side) {
    LONG width = 0, height = 0;
    Check(symbol.get_Width(&width));
    Check(symbol.get_Height(&height));
    const int room = side - 2 * kBorder * kFiner;
    const double scale = static_cast<double>(room) / std::max({width, height, 1L});
    const int boxWidth = std::max(1, static_cast<int>(std::lround(width * scale)));
    const int boxHeight = std::max(1, static_cast<int>(std::lround(height * scale)));
    SetViewportOrgEx(dc, (side - boxWidth) / 2, (side - boxHeight) / 2, nullptr);
    const Ptr<PictureBox> box = PictureBox::Create(dc, boxWidth, boxHeight, L"PaletteBox");
    Check(symbol.Draw2PBox(box.Get()));
}

/// Each pixel is the mean of the finer ones: smooth lines.
std::vector<DWORD> Smoothed(const DWORD* fine, int side) {
    std::vector<DWORD> pixels(static_cast<std::size_t>(side) * side);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            std::array<unsigned, 3> sums{};
            for (int row = 0; row < kFiner; ++row) {
                const DWORD* from = fine + (y * kFiner + row) * side * kFiner + x * kFiner;
                for (int column = 0; column < kFiner; ++column) {
                    sums[0] += from[column] & 0xFF;
                    sums[1] += from[column] >> 8 & 0xFF;
                    sums[2] += from[column] >> 16 & 0xFF;
                }
            }
            constexpr unsigned kParts = kFiner * kFiner;
            pixels[static_cast<std::size_t>(y) * side + x] =
                sums[0] / kParts | sums[1] / kParts << 8 | sums[2] / kParts << 16;
        }
    }
    return pixels;
}

std::vector<DWORD> PictureOf(_CSymbol& symbol, int side) {
    const Canvas32 canvas(side * kFiner);
    try {
        DrawInMiddle(symbol, canvas.Dc(), side * kFiner);
    } catch (const Failure&) {
        // The palette is no place for messages; whoever places the symbol gets one.
        SetViewportOrgEx(canvas.Dc(), 0, 0, nullptr);
        PatBlt(canvas.Dc(), 0, 0, side * kFiner, side * kFiner, WHITENESS);
    }
    GdiFlush(); // what was drawn is in the pixels only then
    return Smoothed(canvas.Pixels(), side);
}

} // namespace

void PaletteThumbnails::SetSide(int side) {
    if (side != side_)
        Clear();
    side_ = side;
}

void PaletteThumbnails::Draw(HDC dc, POINT at, std::size_t number, _CSymbol& symbol) {
    auto found = pictures_.find(number);
    if (found == pictures_.end()) {
        MakeRoom();
        found = pictures_.try_emplace(number, Picture{PictureOf(symbol, side_)}).first;
    }
    found->second.lastUse = ++uses_;
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, side_, -side_, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    SetDIBitsToDevice(dc, at.x, at.y, side_, side_, 0, 0, 0, side_, found->second.pixels.data(), &info,
                      DIB_RGB_COLORS);
}

/// The half that was not used for the longest time goes.
void PaletteThumbnails::MakeRoom() {
    if (pictures_.size() < kMost)
        return;
    std::vector<unsigned> uses;
    for (const auto& [number, picture] : pictures_)
        uses.push_back(picture.lastUse);
    const auto middle = uses.begin() + static_cast<std::ptrdiff_t>(uses.size() / 2);
    std::ranges::nth_element(uses, middle);
    std::erase_if(pictures_, [last = *middle](const auto& each) { return each.second.lastUse < last; });
}
