#include "support/canvas.h"

#include <algorithm>
#include <iomanip>
#include <numeric>

namespace support {

namespace {

constexpr std::uint32_t kWhite = 0x00FFFFFF;

std::uint32_t* MutableBits(const std::uint32_t* bits) {
    return const_cast<std::uint32_t*>(bits);
}

} // namespace

Canvas::Canvas(int width, int height)
    : width_(width), height_(height), context_(CreateCompatibleDC(nullptr)) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // the first line on top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    bitmap_ = CreateDIBSection(context_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    previous_ = SelectObject(context_, bitmap_);
    bits_ = static_cast<const std::uint32_t*>(bits);
    std::fill_n(MutableBits(bits_), width_ * height_, kWhite);
}

Canvas::~Canvas() {
    SelectObject(context_, previous_);
    DeleteDC(context_);
    DeleteObject(bitmap_);
}

void Canvas::FillWithPattern() {
    GdiFlush();
    for (int y = 0; y < height_; ++y)
        for (int x = 0; x < width_; ++x)
            MutableBits(bits_)[y * width_ + x] = static_cast<std::uint32_t>(x * 7919 + y * 104729) & kWhite;
}

std::vector<std::uint32_t> Canvas::Pixels() const {
    GdiFlush();
    std::vector<std::uint32_t> pixels(bits_, bits_ + width_ * height_);
    for (std::uint32_t& pixel : pixels)
        pixel &= kWhite;
    return pixels;
}

std::uint32_t Canvas::Pixel(int x, int y) const {
    GdiFlush();
    return bits_[y * width_ + x] & kWhite;
}

int Canvas::Drawn() const {
    const std::vector<std::uint32_t> pixels = Pixels();
    return static_cast<int>(
        std::count_if(pixels.begin(), pixels.end(), [](auto pixel) { return pixel != kWhite; }));
}

testing::AssertionResult SamePicture(const Canvas& actual, const Canvas& expected) {
    const std::vector<std::uint32_t> a = actual.Pixels();
    const std::vector<std::uint32_t> b = expected.Pixels();
    if (a.size() != b.size())
        return testing::AssertionFailure() << "the pictures have different sizes";
    int different = 0;
    std::size_t first = a.size();
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i] == b[i])
            continue;
        first = std::min(first, i);
        ++different;
    }
    if (different == 0)
        return testing::AssertionSuccess();
    const auto width = static_cast<std::size_t>(actual.Width());
    return testing::AssertionFailure()
           << different << " pixels differ, the first at (" << first % width << ", " << first / width
           << "): 0x" << std::hex << a[first] << " instead of 0x" << b[first] << std::dec
           << "; drawn: " << actual.Drawn() << " instead of " << expected.Drawn();
}

} // namespace support
