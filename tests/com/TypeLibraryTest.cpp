#include <string>

#include "Library.h"

namespace mavCycEd::test {
namespace {

struct ArgumentRow {
  std::wstring name;
  VARTYPE type;
  friend bool operator==(const ArgumentRow&, const ArgumentRow&) = default;
};

struct MemberRow {
  std::wstring name;
  INVOKEKIND kind;
  std::vector<ArgumentRow> arguments;
  VARTYPE result;
  friend bool operator==(const MemberRow&, const MemberRow&) = default;
};

void PrintTo(const MemberRow& member, std::ostream* out) {
  *out << std::string(member.name.begin(), member.name.end()) << " kind " << member.kind << " result " << member.result;
  for (const ArgumentRow& a : member.arguments)
    *out << ", " << std::string(a.name.begin(), a.name.end()) << ' ' << a.type;
}

std::wstring taken(BSTR text) {
  std::wstring copy(text, SysStringLen(text));
  SysFreeString(text);
  return copy;
}

std::wstring nameOf(ITypeInfo& type) {
  BSTR name = nullptr;
  type.GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
  return taken(name);
}

MemberRow rowOf(ITypeInfo& type, const FUNCDESC& function) {
  std::array<BSTR, 10> names{};
  UINT count = 0;
  type.GetNames(function.memid, names.data(), static_cast<UINT>(names.size()), &count);
  MemberRow row{taken(names[0]), function.invkind, {}, function.elemdescFunc.tdesc.vt};
  for (UINT i = 1; i <= static_cast<UINT>(function.cParams); ++i) {
    const ELEMDESC& argument = function.lprgelemdescParam[i - 1];
    // The value of a property has no name among the names.
    std::wstring name = i < count ? taken(names[i]) : L"";
    row.arguments.push_back({std::move(name), argument.tdesc.vt});
  }
  return row;
}

// The members of our own, in their order.
std::vector<MemberRow> membersOf(ITypeInfo& type) {
  std::vector<MemberRow> rows;
  TYPEATTR* attributes = nullptr;
  type.GetTypeAttr(&attributes);
  for (UINT i = 0; i < attributes->cFuncs; ++i) {
    FUNCDESC* function = nullptr;
    type.GetFuncDesc(i, &function);
    const bool isPlatforms = (function->wFuncFlags & FUNCFLAG_FRESTRICTED) != 0 || function->memid >= 0x60000000;
    if (!isPlatforms) rows.push_back(rowOf(type, *function));
    type.ReleaseFuncDesc(function);
  }
  type.ReleaseTypeAttr(attributes);
  return rows;
}

class TypeLibraryTest : public ComTest {
 protected:
  TypeLibraryTest() {
    EXPECT_EQ(library_.function<HRESULT STDMETHODCALLTYPE()>("DllRegisterServer")(), S_OK);
    EXPECT_EQ(LoadRegTypeLib(LIBID_mavCycEd, 1, 3, 0, types_.put()), S_OK);
  }
  void TearDown() override {
    types_ = {};
    EXPECT_EQ(library_.function<HRESULT STDMETHODCALLTYPE()>("DllUnregisterServer")(), S_OK);
  }
  ComPtr<ITypeInfo> type(REFGUID guid) {
    ComPtr<ITypeInfo> info;
    EXPECT_EQ(types_->GetTypeInfoOfGuid(guid, info.put()), S_OK);
    return info;
  }

  ComPtr<ITypeLib> types_;
};

TEST_F(TypeLibraryTest, NamesTheLibraryItsVersionAndItsHelp) {
  BSTR name = nullptr;
  BSTR help = nullptr;
  ASSERT_EQ(types_->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, &help), S_OK);
  EXPECT_EQ(taken(name), L"mavCycEd");
  const std::wstring helpFile = taken(help);
  EXPECT_EQ(helpFile.substr(helpFile.find_last_of(L"\\/") + 1), L"mavCycEd.chm");
  TLIBATTR* attributes = nullptr;
  ASSERT_EQ(types_->GetLibAttr(&attributes), S_OK);
  EXPECT_EQ(attributes->wMajorVerNum, 1);
  EXPECT_EQ(attributes->wMinorVerNum, 3);
  EXPECT_EQ(attributes->syskind, SYS_WIN64);
  types_->ReleaseTLibAttr(attributes);
  EXPECT_EQ(types_->GetTypeInfoCount(), 4U) << "the enumeration, two interfaces, the class";
}

TEST_F(TypeLibraryTest, TheDispatchInterfaceHasTheseMembersInThisOrder) {
  const std::vector<MemberRow> expected{
      {L"SetConfigXML", INVOKE_FUNC, {{L"strConfigXml", VT_BSTR}}, VT_VOID},
      {L"SetXMLStrings", INVOKE_FUNC, {{L"strLatestKam", VT_BSTR}, {L"strCycle", VT_BSTR}}, VT_VOID},
      {L"Ignore_Hidden", INVOKE_PROPERTYPUT, {{L"", VT_BOOL}}, VT_VOID},
      {L"CycleChanged", INVOKE_PROPERTYGET, {}, VT_BOOL},
      {L"RetrieveCycle", INVOKE_FUNC, {}, VT_BSTR},
      {L"ResetCycle", INVOKE_PROPERTYPUT, {{L"", VT_BSTR}}, VT_VOID},
  };
  const ComPtr<ITypeInfo> info = type(IID__ctlCycEd);
  EXPECT_EQ(nameOf(*info.get()), L"_ctlCycEd");
  EXPECT_EQ(membersOf(*info.get()), expected);
}

TEST_F(TypeLibraryTest, TheEventInterfaceHasItsOneEvent) {
  const std::vector<MemberRow> expected{{L"CycleEditorError",
                                         INVOKE_FUNC,
                                         {{L"lngError", VT_I4},
                                          {L"strError", VT_BSTR},
                                          {L"strApplication", VT_BSTR},
                                          {L"strModule", VT_BSTR},
                                          {L"strProcedure", VT_BSTR},
                                          {L"intLineNumber", VT_I2}},
                                         VT_VOID}};
  const ComPtr<ITypeInfo> info = type(DIID___ctlCycEd);
  EXPECT_EQ(nameOf(*info.get()), L"__ctlCycEd");
  EXPECT_EQ(membersOf(*info.get()), expected);
}

TEST_F(TypeLibraryTest, TheEnumerationHasItsOneNumber) {
  ComPtr<ITypeInfo> info;
  MEMBERID member = 0;
  USHORT found = 1;
  Text name(L"mavCycEdErrorInvalidXML");
  ASSERT_EQ(types_->FindName(name, 0, info.put(), &member, &found), S_OK);
  ASSERT_EQ(found, 1);
  EXPECT_EQ(nameOf(*info.get()), L"mavCycEdError");
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
  EXPECT_EQ(attributes->typekind, TKIND_ENUM);
  EXPECT_EQ(attributes->cVars, 1);
  info->ReleaseTypeAttr(attributes);
  VARDESC* variable = nullptr;
  ASSERT_EQ(info->GetVarDesc(0, &variable), S_OK);
  EXPECT_EQ(variable->varkind, VAR_CONST);
  EXPECT_EQ(variable->lpvarValue->lVal, -2147220991);
  info->ReleaseVarDesc(variable);
}

TEST_F(TypeLibraryTest, TheClassIsAControlWithOneInterfaceAndOneSourceOfEvents) {
  const ComPtr<ITypeInfo> info = type(CLSID_ctlCycEd);
  EXPECT_EQ(nameOf(*info.get()), L"ctlCycEd");
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
  EXPECT_EQ(attributes->typekind, TKIND_COCLASS);
  EXPECT_EQ(attributes->cImplTypes, 2);
  EXPECT_NE(attributes->wTypeFlags & TYPEFLAG_FCONTROL, 0);
  EXPECT_NE(attributes->wTypeFlags & TYPEFLAG_FCANCREATE, 0);
  info->ReleaseTypeAttr(attributes);
  const std::array<std::pair<const wchar_t*, INT>, 2> expected{
      {{L"_ctlCycEd", IMPLTYPEFLAG_FDEFAULT}, {L"__ctlCycEd", IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE}}};
  for (UINT i = 0; i < 2; ++i) {
    HREFTYPE reference = 0;
    ComPtr<ITypeInfo> implemented;
    INT flags = 0;
    ASSERT_EQ(info->GetRefTypeOfImplType(i, &reference), S_OK);
    ASSERT_EQ(info->GetRefTypeInfo(reference, implemented.put()), S_OK);
    ASSERT_EQ(info->GetImplTypeFlags(i, &flags), S_OK);
    EXPECT_EQ(nameOf(*implemented.get()), expected[i].first);
    EXPECT_EQ(flags, expected[i].second);
  }
}

}  // namespace
}  // namespace mavCycEd::test
