#include "support/pixels.h"

#include <algorithm>

namespace support {

namespace {

constexpr std::uint32_t kColourBits = 0xFFFFFF;

/// Light colours: 0xC0 to 0xFF in each channel.
std::uint32_t PatternAt(int x, int y) {
    const auto step = static_cast<std::uint32_t>(x * 7 + y * 13);
    return 0xC0C0C0U | (step & 0x3FU) | ((step * 3 & 0x3FU) << 8) | ((step * 5 & 0x3FU) << 16);
}

} // namespace

Canvas::Canvas(int width, int height) : width_(width), height_(height), dc_(CreateCompatibleDC(nullptr)) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    bits_ = static_cast<std::uint32_t*>(bits);
    previous_ = SelectObject(dc_, bitmap_);
    start_ = SaveDC(dc_);
    Reset();
}

Canvas::~Canvas() {
    RestoreDC(dc_, start_);
    SelectObject(dc_, previous_);
    DeleteDC(dc_);
    DeleteObject(bitmap_);
    for (const HGDIOBJ object : {pen_, brush_, font_})
        DeleteObject(object);
}

void Canvas::Reset() {
    RestoreDC(dc_, start_);
    start_ = SaveDC(dc_);
    for (HGDIOBJ* const object : {&pen_, &brush_, &font_}) {
        DeleteObject(*object);
        *object = nullptr;
    }
    GdiFlush();
    for (int y = 0; y < height_; ++y)
        for (int x = 0; x < width_; ++x)
            bits_[y * width_ + x] = PatternAt(x, y);
}

std::vector<std::uint32_t> Canvas::Pixels() const {
    GdiFlush();
    std::vector<std::uint32_t> pixels(bits_, bits_ + static_cast<std::size_t>(width_) * height_);
    for (std::uint32_t& pixel : pixels)
        pixel &= kColourBits;
    return pixels;
}

void Canvas::Use(HGDIOBJ& current, HGDIOBJ next) {
    SelectObject(dc_, next);
    DeleteObject(current); // stock objects survive that
    current = next;
}

void Canvas::UsePen(int style, int width, COLORREF colour) {
    Use(pen_, CreatePen(style, width, colour));
}

void Canvas::UseBrush(COLORREF colour) {
    Use(brush_, CreateSolidBrush(colour));
}

void Canvas::UseNoBrush() {
    Use(brush_, GetStockObject(NULL_BRUSH));
}

void Canvas::UseFont(int height, int escapement, const wchar_t* name, int weight, bool italic, bool underline,
                     bool strikethrough) {
    Use(font_, CreateFontW(-height, 0, escapement, escapement, weight, italic, underline, strikethrough,
                           DEFAULT_CHARSET, OUT_TT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                           DEFAULT_PITCH, name));
}

testing::AssertionResult SamePicture(const Canvas& drawn, const Canvas& expected) {
    const std::vector<std::uint32_t> left = drawn.Pixels();
    const std::vector<std::uint32_t> right = expected.Pixels();
    if (left.size() != right.size() || drawn.Width() != expected.Width())
        return testing::AssertionFailure() << "the pictures have different sizes";
    std::size_t different = 0;
    std::size_t first = 0;
    for (std::size_t i = left.size(); i-- > 0;) {
        if (left[i] == right[i])
            continue;
        ++different;
        first = i;
    }
    if (different == 0)
        return testing::AssertionSuccess();
    const auto width = static_cast<std::size_t>(drawn.Width());
    return testing::AssertionFailure()
           << different << " pixels differ, the first at (" << first % width << ", " << first / width
           << "): " << std::hex << left[first] << " where " << right[first] << " is expected";
}

bool IsDrawnOn(const Canvas& canvas) {
    return !SamePicture(canvas, Canvas(canvas.Width(), canvas.Height()));
}

} // namespace support
