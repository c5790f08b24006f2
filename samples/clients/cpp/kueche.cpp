// A host in C++ without any helper library: a kitchen.   kueche.exe OUTFOLDER CATALOGUEFOLDER...
// x86_64-w64-mingw32-g++ -std=c++17 -municode -I include kueche.cpp -o kueche.exe -lole32 -loleaut32 -luuid
#include "QPlan.h"

#include <cstdio>
#include <string>

struct Failure { std::wstring text; };
struct Text { // a string as COM wants it
    BSTR value = nullptr;
    explicit Text(const std::wstring& text = {}) : value(SysAllocString(text.c_str())) {}
    ~Text() { SysFreeString(value); }
};
template <class Interface> struct Held { // a reference that is released
    Interface* object = nullptr;
    Held() = default;
    explicit Held(REFCLSID id); // makes an object; Held and Text are never copied
    ~Held() { if (object != nullptr) object->Release(); }
    Interface* operator->() const { return object; }
};

void Check(HRESULT status) {
    if (SUCCEEDED(status)) return;
    if (status == REGDB_E_CLASSNOTREG) throw Failure{L"not registered for this bitness: regsvr32 QMath.dll, QSymbol.dll, QPlan.dll"};
    Held<IErrorInfo> info;
    Text source, words;
    if (GetErrorInfo(0, &info.object) == S_OK) info->GetSource(&source.value), info->GetDescription(&words.value);
    throw Failure{L"error " + std::to_wstring(status & 0xFFFF) + L" in " + source.value + L": " + words.value};
}

template <class Interface> Held<Interface>::Held(REFCLSID id) {
    Check(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(Interface), reinterpret_cast<void**>(&object)));
}

void Run(const std::wstring& target, int folders, wchar_t** catalogue) {
    const Held<_CSymbolColl> symbols(__uuidof(CSymbolColl));
    for (int i = 0; i < folders; ++i) Check(symbols->ReadKatalog(Text(catalogue[i]).value));
    LONG count = 0;
    Check(symbols->get_Count(&count));
    if (count == 0) throw Failure{L"no *.syb there: qsymbol convert -r --to syb TEXTFOLDER CATALOGUE"};

    const Held<_CPlan> plan(__uuidof(CPlan));
    Check(plan->putref_Symbols(symbols.object));
    const struct { const wchar_t* name; LONG x, y; double angle; } things[] = { // 1/100 mm, radians
        {L"Herd", 60000, 5000, 0}, {L"Unterschrank", 120000, 5000, 0}, {L"Esstisch 6", 200000, 200000, 0.3}, {L"Einhorn", 0, 0, 0}};
    const auto place = [&](int i) {
        Held<_CPlacement> placed;
        Check(plan->Add(Text(things[i].name).value, things[i].x, things[i].y, things[i].angle, &placed.object));
    };
    for (int i = 0; i < 3; ++i) place(i);
    const Held<_CTrans> map(__uuidof(CTrans));
    const Held<_CPicture> picture(__uuidof(CPicture));
    Check(map->SetScale(500)); // 5 mm to a pixel
    Check(picture->Create(800, 640, 0xFFFFFF));
    Check(plan->Draw(picture.object, map.object));
    Check(picture->Write2File(Text(target + L"\\kueche.png").value));
    Check(plan->WriteDxf(Text(target + L"\\kueche.dxf").value, planMetres));
    Held<_CPlacement> hit;
    Check(plan->HitTest(map.object, 400, 400, &hit.object));
    Text name;
    if (hit.object != nullptr) Check(hit->get_SymbolName(&name.value));
    std::printf("At (400, 400): %ls\n", hit.object != nullptr ? name.value : L"nothing");
    try { place(3); } catch (const Failure& failure) { std::printf("%ls\n", failure.text.c_str()); }
}

int wmain(int count, wchar_t** values) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    int status = 0;
    try { Run(count > 1 ? values[1] : L"", count - 2, values + 2); }
    catch (const Failure& failure) { status = std::printf("%ls\n", failure.text.c_str()) > 0; }
    CoUninitialize();
    return status;
}
