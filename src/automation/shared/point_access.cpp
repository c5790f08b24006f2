#include "automation/shared/point_access.h"

#include "base/checked.h"
#include "com/error_info.h"

qmath::Point GetPoint(_CPt* pt) {
    _CPt& source = com::Required(pt);
    LONG x = 0;
    LONG y = 0;
    com::Check(source.get_X(&x));
    com::Check(source.get_Y(&y));
    return {x, y};
}

void SetPoint(_CPt* pt, const qmath::Point& value) {
    _CPt& target = com::Required(pt);
    com::Check(target.put_X(value.x));
    com::Check(target.put_Y(value.y));
}

std::vector<qmath::Point> GetPoints(_CPtList* list) {
    _CPtList& source = com::Required(list);
    LONG count = 0;
    com::Check(source.get_Count(&count));
    std::vector<qmath::Point> points;
    for (LONG i = 1; i <= count; ++i) {
        com::ComPtr<_CPt> pt;
        com::Check(source.get_Item(i, pt.Put()));
        points.push_back(GetPoint(pt.Get()));
    }
    return points;
}

qmath::Rect GetRect(_CRect* rect) {
    _CRect& source = com::Required(rect);
    LONG left = 0;
    LONG top = 0;
    LONG right = 0;
    LONG bottom = 0;
    com::Check(source.get_Left(&left));
    com::Check(source.get_Top(&top));
    com::Check(source.get_Right(&right));
    com::Check(source.get_Bottom(&bottom));
    return {left, top, right, bottom};
}
