#include "qsymbol/dialog/dialog_layout.h"

#include <algorithm>

namespace qsymbol {

namespace {

// The desktop's usual distances, in dialog units.
constexpr int kMargin = 7;
constexpr int kColumnGap = 7;
constexpr int kRowGap = 7;
constexpr int kRelatedGap = 4;
constexpr int kLabelGap = 3;
constexpr int kTextHeight = 8;
constexpr int kButtonHeight = 14;
constexpr int kButtonWidth = 50;
constexpr int kButtonPadding = 12;
constexpr int kFrameTop = 11;
constexpr int kFrameSide = 7;
constexpr int kProgressHeight = 8;

constexpr int kListWidth = 90;
constexpr int kPreviewWidth = 110;
constexpr int kPreviewHeight = 70;
constexpr int kValueWidth = 48;
constexpr int kProgressWidth = 40;
constexpr int kProgressMaximum = 120;
constexpr int kOpeningWidth = 360;
constexpr int kOpeningHeight = 230;
constexpr int kPreviewMargin = 4;

/// Of the width beyond the minimum, the list gets one part in this many.
constexpr int kListShare = 3;

using qmath::Rect;

Rect At(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
    return {left, top, left + width, top + height};
}

/// Dialog units in pixels, and the sizes that follow from font and captions.
class Grid {
public:
    explicit Grid(const DialogMeasures& measures) : measures_(measures) {}

    std::int32_t X(int units) const { return (units * measures_.averageWidth + 2) / 4; }
    std::int32_t Y(int units) const { return (units * measures_.lineHeight + 4) / 8; }

    std::int32_t Button(std::int32_t caption) const {
        return std::max(X(kButtonWidth), caption + X(kButtonPadding));
    }
    std::int32_t ListMinimum() const { return std::max(X(kListWidth), measures_.listLabel); }
    /// Label and value of one of the two sizes.
    std::int32_t SizeMinimum() const {
        return std::max(measures_.widthLabel, measures_.heightLabel) + X(kRelatedGap) + X(kValueWidth);
    }
    std::int32_t FrameMinimum() const {
        const std::int32_t inside = std::max(2 * SizeMinimum() + X(kRelatedGap), X(kPreviewWidth));
        return std::max(inside, measures_.frame) + 2 * X(kFrameSide);
    }
    std::int32_t ColumnsMinimum() const { return ListMinimum() + X(kColumnGap) + FrameMinimum(); }
    std::int32_t RowMinimum() const {
        return Button(measures_.exportButton) + X(kRowGap) + X(kProgressWidth) + X(kRelatedGap) +
               measures_.progressText + X(kRowGap) + Button(measures_.ok) + X(kRelatedGap) +
               Button(measures_.cancel);
    }

private:
    const DialogMeasures& measures_;
};

void PlaceColumns(const Grid& grid, const DialogMeasures& measures, std::int32_t right, std::int32_t bottom,
                  DialogPlaces& places) {
    const std::int32_t left = grid.X(kMargin);
    const std::int32_t top = grid.Y(kMargin);
    const std::int32_t text = grid.Y(kTextHeight);
    const std::int32_t spare = right - left - grid.ColumnsMinimum();
    const std::int32_t listWidth = grid.ListMinimum() + spare / kListShare;
    places.listLabel = At(left, top, listWidth, text);
    places.list = {left, top + text + grid.Y(kLabelGap), left + listWidth, bottom};
    places.frame = {left + listWidth + grid.X(kColumnGap), top, right, bottom};

    const std::int32_t insideLeft = places.frame.left + grid.X(kFrameSide);
    const std::int32_t insideRight = places.frame.right - grid.X(kFrameSide);
    const std::int32_t sizesTop = bottom - grid.Y(kRowGap) - text;
    places.preview = {insideLeft, top + grid.Y(kFrameTop), insideRight, sizesTop - grid.Y(kRelatedGap)};
    const std::int32_t half = (insideRight - insideLeft - grid.X(kRelatedGap)) / 2;
    const auto placeSize = [&](std::int32_t at, std::int32_t caption, Rect& label, Rect& value) {
        label = At(at, sizesTop, caption, text);
        value = {label.right + grid.X(kRelatedGap), sizesTop, at + half, sizesTop + text};
    };
    placeSize(insideLeft, measures.widthLabel, places.widthLabel, places.width);
    placeSize(insideRight - half, measures.heightLabel, places.heightLabel, places.height);
}

void PlaceRow(const Grid& grid, const DialogMeasures& measures, std::int32_t right, std::int32_t bottom,
              DialogPlaces& places) {
    const std::int32_t height = grid.Y(kButtonHeight);
    const std::int32_t top = bottom - height;
    const auto button = [&](std::int32_t left, std::int32_t caption) {
        return At(left, top, grid.Button(caption), height);
    };
    const auto inMiddle = [&](std::int32_t inner) { return top + (height - inner) / 2; };
    places.exportButton = button(grid.X(kMargin), measures.exportButton);
    places.cancel = button(right - grid.Button(measures.cancel), measures.cancel);
    places.ok = button(places.cancel.left - grid.X(kRelatedGap) - grid.Button(measures.ok), measures.ok);

    const std::int32_t barLeft = places.exportButton.right + grid.X(kRowGap);
    const std::int32_t room =
        places.ok.left - grid.X(kRowGap) - barLeft - grid.X(kRelatedGap) - measures.progressText;
    const std::int32_t bar = std::min(room, grid.X(kProgressMaximum));
    const std::int32_t barHeight = grid.Y(kProgressHeight);
    places.progress = At(barLeft, inMiddle(barHeight), bar, barHeight);
    const std::int32_t textHeight = grid.Y(kTextHeight);
    places.progressText =
        At(barLeft + bar + grid.X(kRelatedGap), inMiddle(textHeight), measures.progressText, textHeight);
    places.saved = At(barLeft, inMiddle(textHeight), places.ok.left - grid.X(kRowGap) - barLeft, textHeight);
}

std::int32_t Fitted(std::int32_t wanted, std::int32_t size, std::int32_t from, std::int32_t to) {
    return std::max(from, std::min(wanted, to - size));
}

} // namespace

DialogSize MinimumSize(const DialogMeasures& measures) {
    const Grid grid(measures);
    const std::int32_t frame = grid.Y(kFrameTop) + grid.Y(kPreviewHeight) + grid.Y(kRelatedGap) +
                               grid.Y(kTextHeight) + grid.Y(kRowGap);
    return {2 * grid.X(kMargin) + std::max(grid.ColumnsMinimum(), grid.RowMinimum()),
            2 * grid.Y(kMargin) + frame + grid.Y(kRowGap) + grid.Y(kButtonHeight)};
}

DialogSize OpeningSize(const DialogMeasures& measures) {
    const Grid grid(measures);
    const DialogSize minimum = MinimumSize(measures);
    return {std::max(minimum.width, grid.X(kOpeningWidth)), std::max(minimum.height, grid.Y(kOpeningHeight))};
}

DialogPlaces PlaceControls(const DialogMeasures& measures, DialogSize client) {
    const Grid grid(measures);
    const DialogSize minimum = MinimumSize(measures);
    const std::int32_t right = std::max(client.width, minimum.width) - grid.X(kMargin);
    const std::int32_t bottom = std::max(client.height, minimum.height) - grid.Y(kMargin);
    DialogPlaces places;
    PlaceColumns(grid, measures, right, bottom - grid.Y(kButtonHeight) - grid.Y(kRowGap), places);
    PlaceRow(grid, measures, right, bottom, places);
    return places;
}

std::int32_t PreviewMargin(const DialogMeasures& measures) {
    return Grid(measures).X(kPreviewMargin);
}

qmath::Point CentredOver(const Rect& owner, DialogSize window, const Rect& workArea) {
    const auto middle = [](std::int32_t from, std::int32_t to, std::int32_t size) {
        return from + (to - from - size) / 2;
    };
    return {
        Fitted(middle(owner.left, owner.right, window.width), window.width, workArea.left, workArea.right),
        Fitted(middle(owner.top, owner.bottom, window.height), window.height, workArea.top, workArea.bottom)};
}

qmath::Point PreviewOffset(std::int32_t symbolWidth, std::int32_t symbolHeight, std::int32_t boxWidth,
                           std::int32_t boxHeight) {
    if (symbolWidth <= 0 || symbolHeight <= 0 || boxWidth <= 0 || boxHeight <= 0)
        return {};
    const double scale =
        std::max(static_cast<double>(symbolWidth) / boxWidth, static_cast<double>(symbolHeight) / boxHeight);
    const auto half = [&](std::int32_t box, std::int32_t symbol) {
        return static_cast<std::int32_t>(std::max((box - symbol / scale) / 2, 0.0));
    };
    return {half(boxWidth, symbolWidth), half(boxHeight, symbolHeight)};
}

} // namespace qsymbol
