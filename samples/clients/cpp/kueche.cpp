// A host in C++ without any helper library: a kitchen.   kueche.exe OUTFOLDER CATALOGUEFOLDER...
// x86_64-w64-mingw32-g++ -std=c++17 -municode -I include kueche.cpp -o kueche.exe -lole32 -loleaut32 -luuid
#include "QPlan.h"
#include <cstdio>
#include <string>

struct Failure { std::wstring text; };
struct Text { // a string as COM wants it; never copied, like Held
    BSTR value;
    explicit Text(const std::wstring& text = {}) : value(SysAllocString(text.c_str())) {}
    ~Text() { SysFreeString(value); }
};
template <class Interface> struct Held { // a reference that is released
    Interface* object = nullptr;
    ~Held() { if (object != nullptr) object->Release(); }
    Interface* operator->() const { return object; }
};

void Check(HRESULT status) {
    if (SUCCEEDED(status)) return;
    if (status == REGDB_E_CLASSNOTREG) throw Failure{L"not registered for this bitness: regsvr32 QMath.dll, QSymbol.dll, QPlan.dll"};
    Held<IErrorInfo> info; Text source, words;
    if (GetErrorInfo(0, &info.object) == S_OK) info->GetSource(&source.value), info->GetDescription(&words.value);
    throw Failure{L"error " + std::to_wstring(status & 0xFFFF) + L" in " + source.value + L": " + words.value};
}

template <class Interface> void Make(REFCLSID id, Held<Interface>& made) {
    Check(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(Interface), reinterpret_cast<void**>(&made.object)));
}

void Run(const std::wstring& target, int folders, wchar_t** catalogue) {
    Held<_CSymbolColl> symbols; Held<_CPlan> plan; Held<_CTrans> map; Held<_CPicture> picture; Held<_CPlacement> hit;
    Make(__uuidof(CSymbolColl), symbols), Make(__uuidof(CPlan), plan), Make(__uuidof(CTrans), map), Make(__uuidof(CPicture), picture);
    for (int i = 0; i < folders; ++i) Check(symbols->ReadKatalog(Text(catalogue[i]).value));
    LONG count = 0;
    Check(symbols->get_Count(&count));
    if (count == 0) throw Failure{L"no *.syb there: qsymbol convert -r --to syb TEXTFOLDER CATALOGUE"};
    Check(plan->putref_Symbols(symbols.object));
    const auto place = [&](const wchar_t* name, LONG x, LONG y, double angle) { // 1/100 mm, radians
        Held<_CPlacement> placed;
        Check(plan->Add(Text(name).value, x, y, angle, &placed.object));
    };
    place(L"Herd", 60000, 5000, 0), place(L"Unterschrank", 120000, 5000, 0), place(L"Esstisch 6", 200000, 200000, 0.3);
    Check(map->SetScale(500)); // 5 mm to a pixel
    Check(picture->Create(800, 640, 0xFFFFFF));
    Check(plan->Draw(picture.object, map.object));
    Check(picture->Write2File(Text(target + L"\\kueche.png").value));
    Check(plan->WriteDxf(Text(target + L"\\kueche.dxf").value, planMetres));
    Check(plan->HitTest(map.object, 400, 400, &hit.object));
    Text name; if (hit.object != nullptr) Check(hit->get_SymbolName(&name.value));
    std::printf("At (400, 400): %ls\n", hit.object != nullptr ? name.value : L"nothing");
    try { place(L"Einhorn", 0, 0, 0); } catch (const Failure& failure) { std::printf("%ls\n", failure.text.c_str()); }
}

int wmain(int count, wchar_t** values) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    try { Run(count > 1 ? values[1] : L"", count - 2, values + 2); }
    catch (const Failure& failure) { return std::printf("%ls\n", failure.text.c_str()), 1; }
    return CoUninitialize(), 0;
}
