#include <array>
#include <initializer_list>

#include "Library.h"

namespace mavCycEd::test {
namespace {

/// Calls members by name, as scripts do.
class LateBoundTest : public ComTest {
 protected:
  DISPID id(const wchar_t* name) {
    auto text = const_cast<LPOLESTR>(name);
    DISPID id = DISPID_UNKNOWN;
    control_->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id);
    return id;
  }

  HRESULT invoke(DISPID member, WORD flags, std::vector<Value> arguments, Value* result = nullptr,
                 std::vector<DISPID> names = {}) {
    std::vector<VARIANTARG> reversed;
    for (auto i = arguments.rbegin(); i != arguments.rend(); ++i) reversed.push_back(i->raw());
    if ((flags & DISPATCH_PROPERTYPUT) != 0) names = {DISPID_PROPERTYPUT};
    DISPPARAMS parameters{reversed.data(), names.data(), static_cast<UINT>(reversed.size()),
                          static_cast<UINT>(names.size())};
    return control_->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters,
                            result != nullptr ? result->get() : nullptr, nullptr, nullptr);
  }
  HRESULT call(const wchar_t* name, std::vector<Value> arguments, Value* result = nullptr) {
    return invoke(id(name), DISPATCH_METHOD, std::move(arguments), result);
  }
  HRESULT put(const wchar_t* name, Value value) { return invoke(id(name), DISPATCH_PROPERTYPUT, {std::move(value)}); }
  HRESULT get(const wchar_t* name, Value& result) { return invoke(id(name), DISPATCH_PROPERTYGET, {}, &result); }

  ComPtr<IDispatch> control_ = library_.control<IDispatch>();
};

TEST_F(LateBoundTest, MembersAreFoundByTheirNamesInAnyCase) {
  EXPECT_EQ(id(L"SetConfigXML"), 1);
  EXPECT_EQ(id(L"SetXMLStrings"), 2);
  EXPECT_EQ(id(L"Ignore_Hidden"), 3);
  EXPECT_EQ(id(L"CycleChanged"), 4);
  EXPECT_EQ(id(L"RetrieveCycle"), 5);
  EXPECT_EQ(id(L"RESETCYCLE"), 6);
  auto name = const_cast<LPOLESTR>(L"NoSuchMember");
  DISPID none = 0;
  EXPECT_EQ(control_->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &none), DISP_E_UNKNOWNNAME);
}

TEST_F(LateBoundTest, ACycleGoesInAndComesBackWhateverItsCharacters) {
  EXPECT_EQ(call(L"SetConfigXML", {Value(L"<Config/>")}), S_OK);
  EXPECT_EQ(put(L"Ignore_Hidden", Value(true)), S_OK);
  EXPECT_EQ(call(L"SetXMLStrings", {Value(catalogue), Value(macroText)}), S_OK);
  Value cycle;
  EXPECT_EQ(call(L"RetrieveCycle", {}, &cycle), S_OK);
  EXPECT_NE(cycle.text().find(L"//\u00b5 \u4e2d \U0001F40D"), std::wstring::npos) << "the description";
  EXPECT_NE(cycle.text().find(L"<ATOMLINE>WAIT(7,)</ATOMLINE>"), std::wstring::npos);
  Value changed;
  EXPECT_EQ(get(L"CycleChanged", changed), S_OK);
  EXPECT_EQ(changed.type(), VT_BOOL);
  EXPECT_FALSE(changed.truth());
  EXPECT_EQ(put(L"ResetCycle", Value(L"<CYCLE/>")), S_OK);
  Value again;
  EXPECT_EQ(call(L"RetrieveCycle", {}, &again), S_OK);
  EXPECT_EQ(again.text().substr(0, 6), L"<CYCLE");
}

TEST_F(LateBoundTest, ArgumentsMayBeNamed) {
  std::array<LPOLESTR, 3> names{const_cast<LPOLESTR>(L"SetXMLStrings"), const_cast<LPOLESTR>(L"strCycle"),
                                const_cast<LPOLESTR>(L"strLatestKam")};
  std::array<DISPID, 3> ids{};
  ASSERT_EQ(control_->GetIDsOfNames(IID_NULL, names.data(), 3, LOCALE_USER_DEFAULT, ids.data()), S_OK);
  // Named arguments stand in the order of their names.
  std::array<Value, 2> values{Value(macroText), Value(catalogue)};
  std::array<VARIANTARG, 2> arguments{values[0].raw(), values[1].raw()};
  DISPPARAMS parameters{arguments.data(), &ids[1], 2, 2};
  EXPECT_EQ(
      control_->Invoke(ids[0], IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr),
      S_OK);
  Value cycle;
  EXPECT_EQ(call(L"RetrieveCycle", {}, &cycle), S_OK);
  EXPECT_NE(cycle.text().find(L"WAIT(7,)"), std::wstring::npos);
}

TEST_F(LateBoundTest, WrongCountsAreRefused) {
  EXPECT_EQ(call(L"SetXMLStrings", {}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(call(L"SetXMLStrings", {Value(catalogue)}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(call(L"SetXMLStrings", {Value(catalogue), Value(L""), Value(L"")}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(call(L"RetrieveCycle", {Value(1)}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(invoke(id(L"Ignore_Hidden"), DISPATCH_PROPERTYPUT, {Value(true), Value(true)}), DISP_E_BADPARAMCOUNT);
}

TEST_F(LateBoundTest, WrongTypesAreRefusedAndFittingOnesConverted) {
  EXPECT_EQ(call(L"SetConfigXML", {Value(control_.get())}), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(put(L"Ignore_Hidden", Value(L"perhaps")), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(put(L"Ignore_Hidden", Value(-1)), S_OK);
  EXPECT_EQ(call(L"SetConfigXML", {Value(5)}), S_OK);
}

TEST_F(LateBoundTest, MembersAreOnlyUsedAsWhatTheyAre) {
  Value result;
  EXPECT_EQ(get(L"Ignore_Hidden", result), DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(put(L"CycleChanged", Value(true)), DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(invoke(77, DISPATCH_METHOD, {}), DISP_E_MEMBERNOTFOUND);
}

// Nothing is done with pointers that lead nowhere.
TEST_F(LateBoundTest, BadPointersAreRefused) {
  EXPECT_EQ(control_->Invoke(5, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr), E_POINTER);
  EXPECT_EQ(control_->Invoke(5, IID_NULL, 0, DISPATCH_METHOD, nowhere<DISPPARAMS>(), nullptr, nullptr, nullptr),
            E_POINTER);
  DISPPARAMS parameters{nullptr, nullptr, 2, 0};
  EXPECT_EQ(control_->Invoke(2, IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr), E_POINTER);
  parameters.cArgs = 0;
  EXPECT_EQ(control_->Invoke(5, IID_NULL, 0, DISPATCH_METHOD, &parameters, nowhere<VARIANT>(), nullptr, nullptr),
            E_POINTER);
  EXPECT_EQ(control_->Invoke(5, IID_IUnknown, 0, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr),
            DISP_E_UNKNOWNINTERFACE);
  EXPECT_EQ(control_->GetIDsOfNames(IID_NULL, nullptr, 1, 0, nullptr), E_POINTER);
  EXPECT_EQ(control_->GetTypeInfoCount(nullptr), E_POINTER);
  EXPECT_EQ(control_->GetTypeInfo(0, 0, nullptr), E_POINTER);
  ComPtr<ITypeInfo> info;
  EXPECT_EQ(control_->GetTypeInfo(1, 0, info.put()), DISP_E_BADINDEX);
}

// Early binding, which the type library also offers.
TEST_F(LateBoundTest, MembersRefuseBadPointersAndExplainThemselves) {
  const ComPtr<_ctlCycEd> editor = control_.as<_ctlCycEd>();
  EXPECT_EQ(editor->RetrieveCycle(nullptr), E_POINTER);
  ComPtr<IErrorInfo> error;
  ASSERT_EQ(GetErrorInfo(0, error.put()), S_OK);
  BSTR source = nullptr;
  EXPECT_EQ(error->GetSource(&source), S_OK);
  EXPECT_STREQ(source, L"mavCycEd.ctlCycEd");
  SysFreeString(source);
  EXPECT_EQ(editor->get_CycleChanged(nowhere<VARIANT_BOOL>()), E_POINTER);
  EXPECT_EQ(editor->SetConfigXML(nowhere<OLECHAR>()), E_POINTER);
  EXPECT_EQ(editor->SetXMLStrings(nullptr, nullptr), S_OK) << "no text is an empty one";
  const ComPtr<ISupportErrorInfo> support = control_.as<ISupportErrorInfo>();
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID__ctlCycEd), S_OK);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID_IOleObject), S_FALSE);
}

}  // namespace
}  // namespace mavCycEd::test
