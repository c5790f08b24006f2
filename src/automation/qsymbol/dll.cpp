#include "automation/objects/math_library.h"
#include "automation/qsymbol/CSymElement.h"
#include "automation/qsymbol/CSymElementColl.h"
#include "automation/qsymbol/CSymTool.h"
#include "automation/qsymbol/CSymbol.h"
#include "automation/qsymbol/CSymbolColl.h"
#include "com/server.h"

namespace {

/// CSymInput is missing on purpose: it comes from a catalogue only.
const com::ClassEntry kClasses[] = {
    {&__uuidof(CSymbol), L"CSymbol", L"QSymbol.CSymbol", CSymbol::CreateInstance},
    {&__uuidof(CSymbolColl), L"CSymbolColl", L"QSymbol.CSymbolColl", CSymbolColl::CreateInstance},
    {&__uuidof(CSymElement), L"CSymElement", L"QSymbol.CSymElement", CSymElement::CreateInstance},
    {&__uuidof(CSymElementColl), L"CSymElementColl", L"QSymbol.CSymElementColl",
     CSymElementColl::CreateInstance},
    {&__uuidof(CSymTool), L"CSymTool", L"QSymbol.CSymTool", CSymTool::CreateInstance},
};

const com::Sibling kSiblings[] = {{u"QMath.dll", &__uuidof(CPt)}};

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void* reserved) {
    return com::ServerMain(instance, reason, reserved,
                           {.name = u"QSymbol",
                            .classes = kClasses,
                            .siblings = kSiblings,
                            .threadIsIdle = math_library::GiveUp,
                            .mayUnload = math_library::Unload});
}
