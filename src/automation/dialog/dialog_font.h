#pragma once

#include <windows.h>

#include <string_view>

namespace dialog {

/// Owner of the desktop's font for messages and dialogs.
class DialogFont {
public:
    DialogFont() = default;
    DialogFont(const DialogFont&) = delete;
    DialogFont& operator=(const DialogFont&) = delete;
    ~DialogFont();

    /// Creates it for the resolution of a window. The system's own font stands in when that fails.
    void CreateFor(HWND window);
    HFONT Get() const { return font_; }

private:
    HFONT font_ = nullptr;
};

/// Measures texts in a font.
class TextMeter {
public:
    TextMeter(HWND window, HFONT font);
    TextMeter(const TextMeter&) = delete;
    TextMeter& operator=(const TextMeter&) = delete;
    ~TextMeter();

    /// Width in pixels of the text as it stands.
    int Width(std::u16string_view text) const;
    /// Width in pixels of a caption, whose "&" marks the access key.
    int CaptionWidth(std::u16string_view caption) const;
    /// Average width of the letters, as dialog units count it.
    int AverageWidth() const;
    int LineHeight() const { return metrics_.tmHeight; }
    /// No character is wider.
    int MaximumWidth() const { return metrics_.tmMaxCharWidth; }

private:
    HWND window_;
    HDC context_;
    HGDIOBJ previous_;
    TEXTMETRICW metrics_{};
};

} // namespace dialog
