#include "support/automation_test.h"
#include "support/servers.h"
#include "support/text.h"
#include "support/type_description.h"

#include <gmock/gmock.h>

namespace {

using support::Ref;

struct Published {
    const wchar_t* library;
    std::vector<std::string> ids;
};

void PrintTo(const Published& published, std::ostream* out) {
    *out << support::Narrow(published.library);
}

// Written out, not taken from the contract's headers: programs that were compiled years ago carry these.
const Published kPublished[] = {
    {L"QMath",
     {"interface _CTrans A81D893A-E1C3-4168-BB38-A507747622BF",
      "interface _CPt 4887E4E4-1DF6-47E3-BCC6-4E31E6D01817",
      "interface _CPtList 638E1AF4-3C79-46FE-93B5-D844F6C03110",
      "interface _CRect DA400066-EC67-4175-9692-592624BB223A",
      "interface _CPolygon 36EE1037-3B9B-4015-9F2F-A9105F1281B1",
      "interface _CMatrix 2E7953F4-0EEF-4C98-A98D-3F52853C94CA",
      "interface _CMathUtil 42F0B268-F279-424B-B882-C4751A8D28AB",
      "interface _CStrUtil 5ED6D912-B636-4673-9FFC-B6A3AEF08D28",
      "interface _CFontSelector 6EC68A76-4610-43A5-9D4A-4435F4B6F8BB",
      "interface _CSettings 0B25ED72-3D2D-4D2D-A190-C05696713ED1",
      "library QMath 921C6A60-AF38-4F8E-B438-0B5C3C9B4314",
      "coclass CTrans 0A188628-0A4D-4468-A4C2-9B27313B7999",
      "coclass CPt EF9E912D-A97B-4F3C-832C-E6172441866E",
      "coclass CPtList 02CC6AD4-93F6-4FA9-8D70-0ECCBF4B9B8E",
      "coclass CRect E1E1C4E5-AD56-4194-8D8B-81D340B25571",
      "coclass CPolygon 6E000DE4-8F84-4DA2-AA02-CCC6AB0129D9",
      "coclass CMatrix E01B9D0E-CFD4-4255-A781-A207316A694C",
      "coclass CMathUtil 4FDFCE51-535B-45C5-B341-97107FE1A777",
      "coclass CStrUtil 9A726FC5-ED19-4DFB-B317-0BBAEFBDB5E3",
      "coclass CFontSelector 967DB100-8305-46B7-9C1B-BB17A5B15695",
      "coclass CSettings A2845D61-EC07-4737-9254-CDC7338DFCF6"}},
    {L"QSymbol",
     {"enum SymElementTypeConstants AD794222-A30A-4A8A-B78C-C93830868D03",
      "interface _CSymbol 85CB3679-2135-48E9-BC23-74F466223F78",
      "interface _CSymbolColl A9C6E6D5-401C-4D44-8CB4-089F2E8AC626",
      "interface _CSymElement C148A449-F1DB-4C81-A82E-685D426D3879",
      "interface _CSymElementColl 8A57ECE8-A963-49FF-87E8-7317058E4B41",
      "interface _CSymInput 42706E57-DE82-4C6A-BC96-9A6D03A957DB",
      "interface _CSymTool 1958A6AD-AF7A-40D1-B0A2-BEFDEB6A3F8F",
      "library QSymbol 4DBEBC97-50A7-4D1C-8E5B-53D64F24067B",
      "coclass CSymbol B71F0260-8646-41BD-808D-53C653890CA0",
      "coclass CSymbolColl 7AC1D1F6-1597-4076-809C-7E8EDD34C30D",
      "coclass CSymElement 4DFA9447-C22B-4519-969C-80B9AF025D60",
      "coclass CSymElementColl 4C2BA0E0-B9EC-48E1-9EE2-9BAA736E981F",
      "coclass CSymInput CBCDF685-39C4-4111-8F95-E60601E89049",
      "coclass CSymTool AE5C6A3B-F12D-45E6-AF62-DFE40BC79860"}},
    {L"QPlan",
     {"enum PlanUnitConstants A5E6BE03-2274-4B85-AE8B-3B7D47734C09",
      "interface _CPicture 96A8A189-6D98-4B69-BDB6-596FB93AA62A",
      "interface _CPlacement BD92C3D9-A088-46A8-A243-31B318D307F3",
      "interface _CPlacementColl 3A5A0434-BEFC-4E66-BC4B-4DE90F5A3C9B",
      "interface _CPlan 2A5D8BC4-971A-40F0-B7B9-5F32261C7DCF",
      "library QPlan BA247BB5-9514-40B7-90F6-3E491400F419",
      "coclass CPicture AA85A60E-C965-43F7-ADF1-97F5808E1657",
      "coclass CPlacement A8DC21DD-352D-43EA-8799-98DB85D9879A",
      "coclass CPlacementColl 9B3B3D09-9850-4AD0-A615-3653904DFA86",
      "coclass CPlan E7DDE405-ACDF-4328-8B7A-8E978E50DC55"}},
};

std::string IdText(const GUID& id) {
    wchar_t text[40];
    StringFromGUID2(id, text, 40);
    return support::Narrow(std::wstring(text).substr(1, 36));
}

/// Kind, name and id of every type in the library, and of the library itself.
std::vector<std::string> IdsIn(ITypeLib& library) {
    static const std::map<TYPEKIND, std::string> kKinds = {
        {TKIND_ENUM, "enum"}, {TKIND_DISPATCH, "interface"}, {TKIND_COCLASS, "coclass"}};
    support::Bstr libraryName;
    EXPECT_OK(library.GetDocumentation(MEMBERID_NIL, libraryName.Put(), nullptr, nullptr, nullptr));
    TLIBATTR* attributes = nullptr;
    EXPECT_OK(library.GetLibAttr(&attributes));
    std::vector<std::string> ids{"library " + support::Narrow(libraryName.Text()) + " " +
                                 IdText(attributes->guid)};
    library.ReleaseTLibAttr(attributes);
    for (UINT i = 0; i < library.GetTypeInfoCount(); ++i) {
        Ref<ITypeInfo> type;
        EXPECT_OK(library.GetTypeInfo(i, type.Put()));
        support::Bstr name;
        EXPECT_OK(type->GetDocumentation(MEMBERID_NIL, name.Put(), nullptr, nullptr, nullptr));
        const TYPEATTR found = support::Attributes(type.Get());
        ids.push_back(kKinds.at(found.typekind) + " " + support::Narrow(name.Text()) + " " +
                      IdText(found.guid));
    }
    return ids;
}

class Ids : public support::AutomationTest, public testing::WithParamInterface<Published> {};

INSTANTIATE_TEST_SUITE_P(Published, Ids, testing::ValuesIn(kPublished),
                         [](const auto& tested) { return support::Narrow(tested.param.library); });

TEST_P(Ids, StayForEver) {
    Ref<ITypeLib> library;
    const std::wstring path = support::ProgramFolder() + GetParam().library + L".dll";
    ASSERT_OK(LoadTypeLibEx(path.c_str(), REGKIND_NONE, library.Put()));
    EXPECT_THAT(IdsIn(*library.Get()), testing::UnorderedElementsAreArray(GetParam().ids));
}

} // namespace
