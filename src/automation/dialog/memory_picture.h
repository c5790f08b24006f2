#pragma once

#include <windows.h>

namespace dialog {

/// A bitmap in memory, white at first, with a device context that stays the same for the picture's life.
class MemoryPicture {
public:
    /// Error 7 when the system gives no device context.
    MemoryPicture();
    MemoryPicture(const MemoryPicture&) = delete;
    MemoryPicture& operator=(const MemoryPicture&) = delete;
    ~MemoryPicture();

    HDC Context() const { return context_; }
    SIZE Size() const { return size_; }

    /// A new white bitmap of at least one pixel. Error 7; the old one stays then.
    void Resize(SIZE size);
    void Clear();
    /// Copies the picture to a place in another context.
    void Show(HDC target, POINT corner) const;

    /// The bitmap out of its context, as other users want it, for as long as this object lives.
    class Bitmap {
    public:
        explicit Bitmap(const MemoryPicture& picture);
        Bitmap(const Bitmap&) = delete;
        Bitmap& operator=(const Bitmap&) = delete;
        ~Bitmap();
        HBITMAP Get() const { return bitmap_; }

    private:
        HDC context_;
        HBITMAP bitmap_;
    };

private:
    HDC context_;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ original_ = nullptr; ///< what the context came with
    SIZE size_{};
};

} // namespace dialog
