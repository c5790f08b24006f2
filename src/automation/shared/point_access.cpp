#include "automation/shared/point_access.h"

#include "com/error_info.h"
#include "com/object_call.h"

qmath::Point GetPoint(_CPt* pt) {
    _CPt& source = com::Required(pt);
    const LONG x = com::Get(source, &_CPt::get_X);
    return {x, com::Get(source, &_CPt::get_Y)};
}

void SetPoint(_CPt* pt, const qmath::Point& value) {
    _CPt& target = com::Required(pt);
    com::Call(target, &_CPt::put_X, value.x);
    com::Call(target, &_CPt::put_Y, value.y);
}

std::vector<qmath::Point> GetPoints(_CPtList* list) {
    _CPtList& source = com::Required(list);
    const LONG count = com::Get(source, &_CPtList::get_Count);
    std::vector<qmath::Point> points;
    for (LONG i = 1; i <= count; ++i) {
        com::ComPtr<_CPt> pt;
        com::Call(source, &_CPtList::get_Item, i, pt.Put());
        points.push_back(GetPoint(pt.Get()));
    }
    return points;
}

qmath::Rect GetRect(_CRect* rect) {
    _CRect& source = com::Required(rect);
    const LONG left = com::Get(source, &_CRect::get_Left);
    const LONG top = com::Get(source, &_CRect::get_Top);
    const LONG right = com::Get(source, &_CRect::get_Right);
    return {left, top, right, com::Get(source, &_CRect::get_Bottom)};
}

void SetRect(_CRect& rect, const qmath::Rect& value) {
    com::Call(rect, &_CRect::put_Left, value.left);
    com::Call(rect, &_CRect::put_Top, value.top);
    com::Call(rect, &_CRect::put_Right, value.right);
    com::Call(rect, &_CRect::put_Bottom, value.bottom);
}
