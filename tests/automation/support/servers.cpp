#include "support/servers.h"

namespace support {

namespace {

template <class Function>
Function* As(FARPROC entry) {
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(entry));
}

} // namespace

bool RunsUnderWine() {
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

std::wstring ProgramFolder() {
    wchar_t path[MAX_PATH];
    const std::wstring full(path, GetModuleFileNameW(nullptr, path, MAX_PATH));
    return full.substr(0, full.rfind(L'\\') + 1);
}

Server::Server(const std::wstring& path) : path_(path), module_(LoadLibraryW(path_.c_str())) {}

Server::~Server() {
    FreeLibrary(module_);
}

FARPROC Server::Entry(const char* name) const {
    return GetProcAddress(module_, name);
}

HRESULT Server::Register() const {
    return As<HRESULT STDAPICALLTYPE()>(Entry("DllRegisterServer"))();
}

HRESULT Server::Unregister() const {
    return As<HRESULT STDAPICALLTYPE()>(Entry("DllUnregisterServer"))();
}

HRESULT Server::Install(bool install, const wchar_t* commandLine) const {
    return As<HRESULT STDAPICALLTYPE(BOOL, LPCWSTR)>(Entry("DllInstall"))(install ? TRUE : FALSE,
                                                                          commandLine);
}

HRESULT Server::CanUnloadNow() const {
    return As<HRESULT STDAPICALLTYPE()>(Entry("DllCanUnloadNow"))();
}

HRESULT Server::GetClassObject(REFCLSID clsid, REFIID iid, void** object) const {
    return As<HRESULT STDAPICALLTYPE(REFCLSID, REFIID, void**)>(Entry("DllGetClassObject"))(clsid, iid,
                                                                                            object);
}

Ref<IClassFactory> Server::Factory(REFCLSID clsid) const {
    Ref<IClassFactory> factory;
    GetClassObject(clsid, IID_IClassFactory, factory.PutVoid());
    return factory;
}

Server& QMathServer() {
    static Server server(ProgramFolder() + L"QMath.dll");
    return server;
}

Server& QSymbolServer() {
    static Server server(ProgramFolder() + L"QSymbol.dll");
    return server;
}

Server& QPlanServer() {
    static Server server(ProgramFolder() + L"QPlan.dll");
    return server;
}

} // namespace support
