#include "editor_layout.h"

#include <algorithm>

EditorLayout LayOut(SIZE client, const LayoutWishes& wishes) {
    const LONG bottom = std::max<LONG>(client.cy - wishes.statusHeight, 0);
    const LONG top = std::min<LONG>(wishes.propertiesHeight, bottom);
    const LONG left = std::min<LONG>(wishes.paletteWidth, client.cx / 2);
    return {{0, 0, client.cx, top}, {0, top, left, bottom}, {left, top, client.cx, bottom}};
}
