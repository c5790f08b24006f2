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

const Library kLibraries[] = {
    {L"QSymbol",
     LIBID_QSymbol,
     4,
     1,
     L"Tessera - Symbolbibliothek",
     {L"CSymbol", L"CSymbolColl", L"CSymElement", L"CSymElementColl", L"CSymInput", L"CSymTool"}},
    {L"QPlan",
     LIBID_QPlan,
     1,
     0,
     L"Tessera - Planbibliothek",
     {L"CPicture", L"CPlacement", L"CPlacementColl", L"CPlan"}},
    {L"QMath",
     LIBID_QMath,
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

TEST_P(TypeLibrary, EveryClassHasOneDualDefaultInterface) {
    const Ref<ITypeLib> library = Load();
    ASSERT_TRUE(library);
    for (const std::wstring name : GetParam().classes) {
        SCOPED_TRACE(std::string(name.begin(), name.end()));
        const Ref<ITypeInfo> type = support::TypeNamed(library.Get(), name.c_str());
        ASSERT_TRUE(type);
        const TYPEATTR attributes = Attributes(type.Get());
        EXPECT_EQ(attributes.cImplTypes, 1);
        const bool comesFromAnother =
            name == L"CSymInput" || name == L"CPlacement" || name == L"CPlacementColl";
        EXPECT_EQ((attributes.wTypeFlags & TYPEFLAG_FCANCREATE) != 0, !comesFromAnother);
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
    const Ref<ITypeLib> library = support::RegisteredLibrary(LIBID_QSymbol, 4, 1);
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

} // namespace
