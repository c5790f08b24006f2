#include "automation/objects/math_objects.h"

#include "automation/objects/math_library.h"
#include "automation/shared/point_access.h"
#include "com/object_call.h"

namespace math_objects {

namespace {

using math_library::Class;

template <class Interface>
com::ComPtr<Interface> New(math_library::Class wanted) {
    com::ComPtr<Interface> object;
    com::Call(math_library::ClassObject(wanted), &IClassFactory::CreateInstance, nullptr, __uuidof(Interface),
              object.PutVoid());
    return object;
}

} // namespace

com::ComPtr<_CPt> NewPoint(const qmath::Point& point) {
    auto pt = New<_CPt>(Class::Pt);
    SetPoint(pt.Get(), point);
    return pt;
}

com::ComPtr<_CPtList> NewPointList(std::span<const qmath::Point> points) {
    auto list = New<_CPtList>(Class::PtList);
    for (const qmath::Point& point : points)
        com::Call(*list, &_CPtList::AddPoint, NewPoint(point).Get());
    return list;
}

com::ComPtr<_CRect> NewRect(const qmath::Rect& rect) {
    auto object = New<_CRect>(Class::Rect);
    SetRect(*object, rect);
    return object;
}

com::ComPtr<_CTrans> NewTrans(double scale) {
    auto trans = New<_CTrans>(Class::Trans);
    com::Call(*trans, &_CTrans::SetScale, scale);
    return trans;
}

com::ComPtr<_CSettings> Settings() {
    return New<_CSettings>(Class::Settings);
}

} // namespace math_objects
