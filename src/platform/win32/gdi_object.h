#pragma once

#include <windows.h>

namespace platform {

/// Owner of a GDI object of its own making.
class GdiObject {
public:
    explicit GdiObject(HGDIOBJ object) : object_(object) {}
    GdiObject(const GdiObject&) = delete;
    GdiObject& operator=(const GdiObject&) = delete;
    ~GdiObject() { DeleteObject(object_); }

    HGDIOBJ Get() const { return object_; }

private:
    HGDIOBJ object_;
};

/// An object selected into a device context; at the end the previous one is back.
class Selection {
public:
    Selection(HDC context, const GdiObject& object)
        : context_(context), previous_(SelectObject(context, object.Get())) {}
    Selection(const Selection&) = delete;
    Selection& operator=(const Selection&) = delete;
    ~Selection() { SelectObject(context_, previous_); }

private:
    HDC context_;
    HGDIOBJ previous_;
};

} // namespace platform
