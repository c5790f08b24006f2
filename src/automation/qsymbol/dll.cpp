#include "automation/qsymbol/CSymElement.h"
#include "automation/qsymbol/CSymElementColl.h"
#include "automation/qsymbol/CSymTool.h"
#include "automation/qsymbol/CSymbol.h"
#include "automation/qsymbol/CSymbolColl.h"
#include "automation/qsymbol/math_library.h"
#include "com/server.h"
#include "qsymbol/draw/screen_point_buffer.h"

namespace {

constexpr GUID kTypeLibrary = {0x4dbebc97, 0x50a7, 0x4d1c, {0x8e, 0x5b, 0x53, 0xd6, 0x4f, 0x24, 0x06, 0x7b}};

/// CSymInput is missing on purpose: it comes from a catalogue only.
const com::ClassEntry kClasses[] = {
    {&__uuidof(CSymbol), L"CSymbol", L"QSymbol.CSymbol", CSymbol::CreateInstance},
    {&__uuidof(CSymbolColl), L"CSymbolColl", L"QSymbol.CSymbolColl", CSymbolColl::CreateInstance},
    {&__uuidof(CSymElement), L"CSymElement", L"QSymbol.CSymElement", CSymElement::CreateInstance},
    {&__uuidof(CSymElementColl), L"CSymElementColl", L"QSymbol.CSymElementColl",
     CSymElementColl::CreateInstance},
    {&__uuidof(CSymTool), L"CSymTool", L"QSymbol.CSymTool", CSymTool::CreateInstance},
};

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void* reserved) {
    if (reason == DLL_PROCESS_ATTACH)
        qsymbol::ScreenPointBuffer::Shared().Reset();
    return com::ServerMain(instance, reason, reserved,
                           {.name = u"QSymbol",
                            .typeLibrary = &kTypeLibrary,
                            .major = 4,
                            .minor = 1,
                            .locale = 0x409,
                            .classes = kClasses,
                            .threadIsIdle = math_library::GiveUp,
                            .mayUnload = math_library::Unload});
}
