/* A host in C: a bathroom as a picture and a drawing, what lies in its middle, an error.
   bad.exe OUTFOLDER CATALOGUEFOLDER...
   x86_64-w64-mingw32-gcc -municode -I include bad.c -o bad.exe -lole32 -loleaut32 -luuid */
#define COBJMACROS
#include <initguid.h> /* the ids of classes and interfaces stand in this file */
#include "QPlan.h"
#include <stdio.h>

#define QUARTER 1.5707963267948966 /* radians, counter-clockwise */
static const struct { const wchar_t* name; long x, y; double angle; } kFurniture[] = { /* 1/100 mm */
    {L"Badewanne", 100000, 10000, 0}, {L"Waschtisch", 240000, 10000, 0}, {L"WC", 290000, 150000, -QUARTER},
    {L"Dusche", 10000, 240000, QUARTER}, {L"Bidet", 290000, 210000, -QUARTER}};

/* Tells number, source and text of a failed call, or how to mend what is missing. */
static int Failed(const char* step, HRESULT status) {
    IErrorInfo* info = NULL;
    BSTR source = NULL, text = NULL;
    if (SUCCEEDED(status)) return 0;
    if (GetErrorInfo(0, &info) == S_OK)
        IErrorInfo_GetSource(info, &source), IErrorInfo_GetDescription(info, &text), IErrorInfo_Release(info);
    if (status == REGDB_E_CLASSNOTREG)
        printf("%s: not registered for %d bits: regsvr32 QMath.dll, QSymbol.dll, QPlan.dll\n", step, (int)sizeof(void*) * 8);
    else /* the libraries' numbers are packed as 0x800A0000 + number */
        printf("%s: error %ld in %ls: %ls\n", step, status & 0xFFFF, source ? source : L"?", text ? text : L"?");
    SysFreeString(source);
    SysFreeString(text);
    return 1;
}

int wmain(int count, wchar_t** values) {
    _CSymbolColl* symbols = NULL; _CPlan* plan = NULL; _CPicture* picture = NULL; _CTrans* map = NULL; _CPlacement* hit = NULL;
    wchar_t path[MAX_PATH + 16];
    long loaded = 0;
    if (count < 3) return printf("bad.exe OUTFOLDER CATALOGUEFOLDER...\n"), 2;
    CoInitializeEx(NULL, COINIT_APARTMENTTHREADED);
#define CREATE(name, at) CoCreateInstance(&CLSID_C##name, NULL, CLSCTX_INPROC_SERVER, &IID__C##name, (void**)(at))
#define TRY(call) if (Failed(#call, call)) return 1 /* the end of the program ends the objects */
    TRY(CREATE(SymbolColl, &symbols)); TRY(CREATE(Plan, &plan)); TRY(CREATE(Picture, &picture)); TRY(CREATE(Trans, &map));
    for (int i = 2; i < count; ++i) TRY(_CSymbolColl_ReadKatalog(symbols, SysAllocString(values[i])));
    TRY(_CSymbolColl_get_Count(symbols, &loaded));
    if (loaded == 0) return printf("No *.syb in %ls: qsymbol convert -r --to syb SOURCE TARGET\n", values[2]), 1;

    TRY(_CPlan_putref_Symbols(plan, symbols));
    for (unsigned i = 0; i < sizeof kFurniture / sizeof *kFurniture; ++i) {
        TRY(_CPlan_Add(plan, SysAllocString(kFurniture[i].name), kFurniture[i].x, kFurniture[i].y, kFurniture[i].angle, &hit));
        _CPlacement_Release(hit);
    }
    TRY(_CTrans_SetScale(map, 500)); /* 5 mm to a pixel */
    TRY(_CPicture_Create(picture, 600, 680, 0xFFFFFF));
    TRY(_CPlan_Draw(plan, (IDispatch*)picture, map));
    swprintf(path, MAX_PATH, L"%ls\\bad.png", values[1]);
    TRY(_CPicture_Write2File(picture, SysAllocString(path)));
    swprintf(path, MAX_PATH, L"%ls\\bad.dxf", values[1]);
    TRY(_CPlan_WriteDxf(plan, SysAllocString(path), planMillimetres));
    TRY(_CPlan_HitTest(plan, map, 100, 60, &hit)); /* NULL where nothing lies */
    BSTR name = NULL;
    if (hit) TRY(_CPlacement_get_SymbolName(hit, &name));
    printf("At (100, 60): %ls\n", name ? name : L"nothing");
    return Failed("an unknown symbol", _CPlan_Add(plan, SysAllocString(L"Einhorn"), 0, 0, 0, &hit)) ? 0 : 1;
}
