// A host in C++ with the smart pointers of Microsoft's compiler: a child's room.
// kinderzimmer_msvc.exe CATALOGUE OUTFOLDER
// cl /EHsc /std:c++17 /I include kinderzimmer_msvc.cpp        with the type libraries in include or registered
#import "QMath.tlb"
#import "QSymbol.tlb"
#import "QPlan.tlb"
#include <comdef.h>
#include <cstdio>
#include <filesystem>

namespace fs = std::filesystem;

void Tell(const _com_error& error) {
    if (error.Error() == REGDB_E_CLASSNOTREG)
        std::printf("not registered for this bitness: regsvr32 QMath.dll, QSymbol.dll, QPlan.dll\n");
    else
        std::printf("error %ld in %ls: %ls\n", error.Error() & 0xFFFF, static_cast<const wchar_t*>(error.Source()),
                    static_cast<const wchar_t*>(error.Description()));
}

bool Furnish(const fs::path& catalogue, const fs::path& target) {
    QSymbol::_CSymbolCollPtr symbols(__uuidof(QSymbol::CSymbolColl)); // throws _com_error
    symbols->ReadKatalog(catalogue.c_str());
    for (const auto& entry : fs::recursive_directory_iterator(catalogue))
        if (entry.is_directory()) symbols->ReadKatalog(entry.path().c_str());
    if (symbols->Count == 0)
        return std::printf("no *.syb below %ls: qsymbol convert -r --to syb TEXTFOLDER CATALOGUE\n", catalogue.c_str()) < 0;

    QPlan::_CPlanPtr plan(__uuidof(QPlan::CPlan));
    plan->PutRefSymbols(symbols);
    plan->Add(L"Etagenbett", 60000, 10000, 0.0);
    plan->Add(L"Schreibtisch", 250000, 10000, 0.0);
    const QPlan::_CPlacementPtr chair = plan->Add(L"Stuhl", 250000, 120000, 0.0);
    chair->Angle = 3.14159265358979;

    QMath::_CTransPtr map(__uuidof(QMath::CTrans));
    map->SetScale(500);
    QPlan::_CPicturePtr picture(__uuidof(QPlan::CPicture));
    picture->Create(700, 500, 0xFFFFFF);
    plan->Draw(picture, map);
    picture->Write2File((target / L"kinderzimmer.png").c_str());
    plan->WriteDxf((target / L"kinderzimmer.dxf").c_str(), QPlan::planMillimetres);
    if (const QPlan::_CPlacementPtr hit = plan->HitTest(map, 500, 60))
        std::printf("hit: %ls\n", static_cast<const wchar_t*>(hit->SymbolName));
    plan->RemoveById(chair->Id);
    try { plan->Add(L"Einhorn", 0, 0, 0.0); } catch (const _com_error& error) { Tell(error); }
    return true;
}

int wmain(int count, wchar_t** values) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    bool done = false;
    try { done = count == 3 && Furnish(values[1], values[2]); } catch (const _com_error& error) { Tell(error); }
    CoUninitialize();
    return done ? 0 : 1;
}
