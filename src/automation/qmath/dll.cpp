#include "automation/qmath/CFontSelector.h"
#include "automation/qmath/CMathUtil.h"
#include "automation/qmath/CMatrix.h"
#include "automation/qmath/CPolygon.h"
#include "automation/qmath/CPt.h"
#include "automation/qmath/CPtList.h"
#include "automation/qmath/CRect.h"
#include "automation/qmath/CSettings.h"
#include "automation/qmath/CStrUtil.h"
#include "automation/qmath/CTrans.h"
#include "com/server.h"

namespace {

const com::ClassEntry kClasses[] = {
    {&__uuidof(CTrans), L"CTrans", L"QMath.CTrans", CTrans::CreateInstance},
    {&__uuidof(CPt), L"CPt", L"QMath.CPt", CPt::CreateInstance},
    {&__uuidof(CPtList), L"CPtList", L"QMath.CPtList", CPtList::CreateInstance},
    {&__uuidof(CRect), L"CRect", L"QMath.CRect", CRect::CreateInstance},
    {&__uuidof(CPolygon), L"CPolygon", L"QMath.CPolygon", CPolygon::CreateInstance},
    {&__uuidof(CMatrix), L"CMatrix", L"QMath.CMatrix", CMatrix::CreateInstance},
    {&__uuidof(CMathUtil), L"CMathUtil", L"QMath.CMathUtil", CMathUtil::CreateInstance},
    {&__uuidof(CStrUtil), L"CStrUtil", L"QMath.CStrUtil", CStrUtil::CreateInstance},
    {&__uuidof(CFontSelector), L"CFontSelector", L"QMath.CFontSelector", CFontSelector::CreateInstance},
    {&__uuidof(CSettings), L"CSettings", L"QMath.CSettings", CSettings::CreateInstance},
};

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void* reserved) {
    return com::ServerMain(instance, reason, reserved, {.name = u"QMath", .classes = kClasses});
}
