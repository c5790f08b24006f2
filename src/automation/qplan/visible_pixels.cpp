#include "automation/qplan/visible_pixels.h"

std::optional<qmath::Rect> VisiblePixels(HDC context) {
    const DWORD kind = GetObjectType(context);
    if (kind != OBJ_DC && kind != OBJ_MEMDC) // metafiles keep what is outside as well
        return std::nullopt;
    RECT box{};
    if (GetClipBox(context, &box) == ERROR)
        return std::nullopt;
    return qmath::Rect{box.left, box.top, box.right, box.bottom};
}
