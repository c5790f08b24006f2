/* Buero.exe HOSTFXR DOTNET PROGRAM ARGUMENT...: starts a CLR program in a process of this name, so that the manifest beside
   it counts, as it does for the program that a C# compiler makes. */
#include <stdio.h>
#include <windows.h>

typedef int (*Main)(int count, const wchar_t** values);

int wmain(int count, wchar_t** values) {
    HMODULE host = count > 3 ? LoadLibraryW(values[1]) : NULL;
    Main start = host ? (Main)(void*)GetProcAddress(host, "hostfxr_main") : NULL;
    if (!start)
        return printf("no CLR in %ls\n", count > 1 ? values[1] : L"?"), 3;
    return start(count - 2, (const wchar_t**)values + 2);
}
