#pragma once

#include "support/ref.h"

#include <windows.h>

#include <string>

namespace support {

/// A copy of one of the DLLs, loaded by its full path and reached through its entry points.
class Server {
public:
    explicit Server(const std::wstring& path);
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;
    ~Server();

    bool Loaded() const { return module_ != nullptr; }
    const std::wstring& Path() const { return path_; }
    HRESULT Register() const;
    HRESULT Unregister() const;
    HRESULT Install(bool install, const wchar_t* commandLine) const;
    HRESULT CanUnloadNow() const;
    HRESULT GetClassObject(REFCLSID clsid, REFIID iid, void** object) const;
    Ref<IClassFactory> Factory(REFCLSID clsid) const;

private:
    FARPROC Entry(const char* name) const;

    std::wstring path_;
    HMODULE module_ = nullptr;
};

/// The DLLs beside the program, loaded for the whole run.
Server& QMathServer();
Server& QSymbolServer();
Server& QPlanServer();

/// True under Wine, where some services of the system are thinner.
bool RunsUnderWine();

/// Folder of the running program with a backslash at its end.
std::wstring ProgramFolder();

} // namespace support
