#include "support/automation_test.h"
#include "support/type_description.h"

#include <gmock/gmock.h>

namespace {

using support::Attributes;
using support::Bstr;
using support::Ref;

struct Library {
    const wchar_t* name;
    GUID id;
    WORD major;
    WORD minor;
    const wchar_t* help;
    std::vector<const wchar_t*> classes;
};

// The ids are written out: hosts compiled against an earlier build depend on them.
const Library kLibraries[] = {
    {L"QSymbol",
     {0x4dbebc97, 0x50a7, 0x4d1c, {0x8e, 0x5b, 0x53, 0xd6, 0x4f, 0x24, 0x06, 0x7b}},
     4,
     1,
     L"Tessera - Symbolbibliothek",
     {L"CSymbol", L"CSymbolColl", L"CSymElement", L"CSymElementColl", L"CSymInput", L"CSymTool"}},
    {L"QMath",
     {0x921c6a60, 0xaf38, 0x4f8e, {0xb4, 0x38, 0x0b, 0x5c, 0x3c, 0x9b, 0x43, 0x14}},
     1,
     0,
     L"Tessera - Geometrie",
     {L"CTrans", L"CPt", L"CPtList", L"CRect", L"CPolygon", L"CMatrix", L"CMathUtil", L"CStrUtil",
      L"CFontSelector", L"CSettings"}},
};

void PrintTo(const Library& library, std::ostream* out) {
    const std::wstring name = library.name;
    *out << std::string(name.begin(), name.end());
}

class TypeLibrary : public support::AutomationTest, public testing::WithParamInterface<Library> {
protected:
    Ref<ITypeLib> Load() const {
        return support::RegisteredLibrary(GetParam().id, GetParam().major, GetParam().minor);
    }
};

INSTANTIATE_TEST_SUITE_P(Published, TypeLibrary, testing::ValuesIn(kLibraries), [](const auto& tested) {
    const std::wstring name = tested.param.name;
    return std::string(name.begin(), name.end());
});

TEST_P(TypeLibrary, IsRegisteredWithVersionLocaleAndHelp) {
    const Ref<ITypeLib> library = Load();
    ASSERT_TRUE(library);
    Bstr name;
    Bstr help;
    ASSERT_OK(library->GetDocumentation(MEMBERID_NIL, name.Put(), help.Put(), nullptr, nullptr));
    EXPECT_EQ(name.Text(), GetParam().name);
    EXPECT_EQ(help.Text(), GetParam().help);
    TLIBATTR* attributes = nullptr;
    ASSERT_OK(library->GetLibAttr(&attributes));
    EXPECT_EQ(attributes->guid, GetParam().id);
    EXPECT_EQ(attributes->wMajorVerNum, GetParam().major);
    EXPECT_EQ(attributes->wMinorVerNum, GetParam().minor);
    EXPECT_EQ(attributes->lcid, 0x409U);
    EXPECT_EQ(attributes->syskind, sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32);
    library->ReleaseTLibAttr(attributes);
}

TEST_P(TypeLibrary, HoldsItsClassesAndNothingInternal) {
    const Ref<ITypeLib> library = Load();
    ASSERT_TRUE(library);
    std::vector<std::wstring> found;
    for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
        TYPEKIND kind{};
        Bstr name;
        ASSERT_OK(library->GetTypeInfoType(i, &kind));
        ASSERT_OK(library->GetDocumentation(static_cast<INT>(i), name.Put(), nullptr, nullptr, nullptr));
        if (kind == TKIND_COCLASS)
            found.push_back(name.Text());
    }
    EXPECT_THAT(found, testing::UnorderedElementsAreArray(GetParam().classes));
}

TEST_P(TypeLibrary, EveryClassHasOneDualDefaultInterface) {
    const Ref<ITypeLib> library = Load();
    ASSERT_TRUE(library);
    for (const std::wstring name : GetParam().classes) {
        SCOPED_TRACE(std::string(name.begin(), name.end()));
        const Ref<ITypeInfo> type = support::TypeNamed(library.Get(), name.c_str());
        ASSERT_TRUE(type);
        const TYPEATTR attributes = Attributes(type.Get());
        EXPECT_EQ(attributes.cImplTypes, 1);
        EXPECT_EQ((attributes.wTypeFlags & TYPEFLAG_FCANCREATE) != 0, name != L"CSymInput");
        INT flags = 0;
        ASSERT_OK(type->GetImplTypeFlags(0, &flags));
        EXPECT_EQ(flags, IMPLTYPEFLAG_FDEFAULT);
        HREFTYPE reference = 0;
        Ref<ITypeInfo> face;
        ASSERT_OK(type->GetRefTypeOfImplType(0, &reference));
        ASSERT_OK(type->GetRefTypeInfo(reference, face.Put()));
        Bstr faceName;
        Bstr help;
        ASSERT_OK(face->GetDocumentation(MEMBERID_NIL, faceName.Put(), help.Put(), nullptr, nullptr));
        EXPECT_EQ(faceName.Text(), L"_" + name);
        EXPECT_NE(help.Text(), L"");
        const TYPEATTR faceAttributes = Attributes(face.Get());
        constexpr WORD kFlags = TYPEFLAG_FHIDDEN | TYPEFLAG_FDUAL | TYPEFLAG_FNONEXTENSIBLE;
        EXPECT_EQ(faceAttributes.wTypeFlags & kFlags, kFlags);
        EXPECT_NE(faceAttributes.guid, attributes.guid);
        const Ref<ITypeInfo> vtable = support::VtableOf(face.Get());
        ASSERT_TRUE(vtable);
        EXPECT_NE(Attributes(vtable.Get()).wTypeFlags & TYPEFLAG_FOLEAUTOMATION, 0);
    }
}

using QSymbolLibrary = support::AutomationTest;

TEST_F(QSymbolLibrary, PublishesTheKindsOfElement) {
    const Ref<ITypeLib> library = support::RegisteredLibrary(kLibraries[0].id, 4, 1);
    ASSERT_TRUE(library);
    const Ref<ITypeInfo> type = support::TypeNamed(library.Get(), L"SymElementTypeConstants");
    ASSERT_TRUE(type);
    const TYPEATTR attributes = Attributes(type.Get());
    EXPECT_EQ(attributes.typekind, TKIND_ENUM);
    EXPECT_EQ(attributes.cbSizeInstance, 4U);
    std::vector<std::pair<std::wstring, LONG>> constants;
    for (WORD i = 0; i < attributes.cVars; ++i) {
        VARDESC* constant = nullptr;
        ASSERT_OK(type->GetVarDesc(i, &constant));
        Bstr name;
        ASSERT_OK(type->GetDocumentation(constant->memid, name.Put(), nullptr, nullptr, nullptr));
        constants.emplace_back(name.Text(), V_I4(constant->lpvarValue));
        type->ReleaseVarDesc(constant);
    }
    EXPECT_THAT(constants, testing::ElementsAre(testing::Pair(L"symUndefined", 0),
                                                testing::Pair(L"symPoly", 1), testing::Pair(L"symCircle", 2),
                                                testing::Pair(L"symArc", 3), testing::Pair(L"symText", 4)));
}

/// The ids of everything that hosts were compiled against.
TEST_F(QSymbolLibrary, KeepsItsIds) {
    const std::pair<const wchar_t*, GUID> kIds[] = {
        {L"CSymbol", {0xb71f0260, 0x8646, 0x41bd, {0x80, 0x8d, 0x53, 0xc6, 0x53, 0x89, 0x0c, 0xa0}}},
        {L"CSymbolColl", {0x7ac1d1f6, 0x1597, 0x4076, {0x80, 0x9c, 0x7e, 0x8e, 0xdd, 0x34, 0xc3, 0x0d}}},
        {L"CSymElement", {0x4dfa9447, 0xc22b, 0x4519, {0x96, 0x9c, 0x80, 0xb9, 0xaf, 0x02, 0x5d, 0x60}}},
        {L"CSymElementColl", {0x4c2ba0e0, 0xb9ec, 0x48e1, {0x9e, 0xe2, 0x9b, 0xaa, 0x73, 0x6e, 0x98, 0x1f}}},
        {L"CSymInput", {0xcbcdf685, 0x39c4, 0x4111, {0x8f, 0x95, 0xe6, 0x06, 0x01, 0xe8, 0x90, 0x49}}},
        {L"CSymTool", {0xae5c6a3b, 0xf12d, 0x45e6, {0xaf, 0x62, 0xdf, 0xe4, 0x0b, 0xc7, 0x98, 0x60}}},
        {L"_CSymbol", {0x85cb3679, 0x2135, 0x48e9, {0xbc, 0x23, 0x74, 0xf4, 0x66, 0x22, 0x3f, 0x78}}},
        {L"_CSymbolColl", {0xa9c6e6d5, 0x401c, 0x4d44, {0x8c, 0xb4, 0x08, 0x9f, 0x2e, 0x8a, 0xc6, 0x26}}},
        {L"_CSymElement", {0xc148a449, 0xf1db, 0x4c81, {0xa8, 0x2e, 0x68, 0x5d, 0x42, 0x6d, 0x38, 0x79}}},
        {L"_CSymElementColl", {0x8a57ece8, 0xa963, 0x49ff, {0x87, 0xe8, 0x73, 0x17, 0x05, 0x8e, 0x4b, 0x41}}},
        {L"_CSymInput", {0x42706e57, 0xde82, 0x4c6a, {0xbc, 0x96, 0x9a, 0x6d, 0x03, 0xa9, 0x57, 0xdb}}},
        {L"_CSymTool", {0x1958a6ad, 0xaf7a, 0x40d1, {0xb0, 0xa2, 0xbe, 0xfd, 0xeb, 0x6a, 0x3f, 0x8f}}},
    };
    const Ref<ITypeLib> library = support::RegisteredLibrary(kLibraries[0].id, 4, 1);
    ASSERT_TRUE(library);
    for (const auto& [name, id] : kIds) {
        const Ref<ITypeInfo> type = support::TypeNamed(library.Get(), name);
        ASSERT_TRUE(type) << name;
        EXPECT_EQ(Attributes(type.Get()).guid, id) << std::wstring(name);
    }
}

} // namespace
