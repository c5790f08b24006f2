#include "automation/qsymbol/math_objects.h"

#include "automation/shared/point_access.h"
#include "com/error_info.h"
#include "com/module.h"
#include "com/object_call.h"

#include <string>

namespace math_objects {

namespace {

using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);

/// The class factory of the QMath.dll beside this DLL, which stays loaded.
com::ComPtr<IClassFactory> SiblingFactory(REFCLSID clsid) {
    com::ComPtr<IClassFactory> factory;
    const HMODULE sibling = LoadLibraryW((com::TheModule().Folder() + L"QMath.dll").c_str());
    const auto entry = sibling == nullptr ? nullptr
                                          : reinterpret_cast<GetClassObject>(reinterpret_cast<void*>(
                                                GetProcAddress(sibling, "DllGetClassObject")));
    if (entry != nullptr)
        com::Check(entry(clsid, IID_IClassFactory, factory.PutVoid()));
    return factory;
}

com::ComPtr<IClassFactory> Factory(REFCLSID clsid) {
    com::ComPtr<IClassFactory> factory;
    const HRESULT status =
        CoGetClassObject(clsid, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory, factory.PutVoid());
    if (SUCCEEDED(status))
        return factory;
    factory = SiblingFactory(clsid);
    if (!factory)
        com::ThrowSystemFailure(status);
    return factory;
}

template <class Interface>
com::ComPtr<Interface> New(IClassFactory& factory) {
    com::ComPtr<Interface> object;
    com::Call(factory, &IClassFactory::CreateInstance, nullptr, __uuidof(Interface), object.PutVoid());
    return object;
}

} // namespace

com::ComPtr<_CPt> NewPoint(const qmath::Point& point) {
    auto pt = New<_CPt>(*Factory(__uuidof(CPt)).Get());
    SetPoint(pt.Get(), point);
    return pt;
}

com::ComPtr<_CPtList> NewPointList(std::span<const qmath::Point> points) {
    auto list = New<_CPtList>(*Factory(__uuidof(CPtList)).Get());
    if (points.empty())
        return list;
    const com::ComPtr<IClassFactory> pointFactory = Factory(__uuidof(CPt)); // looked up once for all points
    for (const qmath::Point& point : points) {
        const auto pt = New<_CPt>(*pointFactory.Get());
        SetPoint(pt.Get(), point);
        com::Call(*list, &_CPtList::AddPoint, pt.Get());
    }
    return list;
}

com::ComPtr<_CRect> NewRect(const qmath::Rect& rect) {
    auto object = New<_CRect>(*Factory(__uuidof(CRect)).Get());
    com::Call(*object, &_CRect::put_Left, rect.left);
    com::Call(*object, &_CRect::put_Top, rect.top);
    com::Call(*object, &_CRect::put_Right, rect.right);
    com::Call(*object, &_CRect::put_Bottom, rect.bottom);
    return object;
}

com::ComPtr<_CSettings> Settings() {
    return New<_CSettings>(*Factory(__uuidof(CSettings)).Get());
}

} // namespace math_objects
