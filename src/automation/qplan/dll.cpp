#include "automation/objects/math_library.h"
#include "automation/qplan/CPicture.h"
#include "automation/qplan/CPlan.h"
#include "com/server.h"

namespace {

/// CPlacement and CPlacementColl are missing on purpose: they come from a plan only.
const com::ClassEntry kClasses[] = {
    {&__uuidof(CPicture), L"CPicture", L"QPlan.CPicture", CPicture::CreateInstance},
    {&__uuidof(CPlan), L"CPlan", L"QPlan.CPlan", CPlan::CreateInstance},
};

const com::Sibling kSiblings[] = {{u"QMath.dll", &__uuidof(CPt)}, {u"QSymbol.dll", &__uuidof(CSymbol)}};

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void* reserved) {
    return com::ServerMain(instance, reason, reserved,
                           {.name = u"QPlan",
                            .classes = kClasses,
                            .siblings = kSiblings,
                            .threadIsIdle = math_library::GiveUp,
                            .mayUnload = math_library::Unload});
}
