#include "com/Automation.h"

#include "com/BasicStrings.h"
#include "com/EditorSession.h"
#include "com/ErrorText.h"
#include "com/TypeLibrary.h"

namespace mavCycEd::com {
namespace {

// A caller that keeps to the rules has its arguments behind readable pointers; the type description only looks at what
// they lead to.
void requireArguments(const DISPPARAMS* arguments) {
  requireReadable(arguments, sizeof *arguments);
  if (arguments->cArgs > 0) requireReadable(arguments->rgvarg, arguments->cArgs * sizeof(VARIANTARG));
  if (arguments->cNamedArgs > 0) {
    requireReadable(arguments->rgdispidNamedArgs, arguments->cNamedArgs * sizeof(DISPID));
  }
}

// How many arguments a caller gives to a function.
int countOfArguments(const FUNCDESC& function) {
  int count = 0;
  for (SHORT i = 0; i < function.cParams; ++i) {
    if ((function.lprgelemdescParam[i].paramdesc.wParamFlags & PARAMFLAG_FRETVAL) == 0) ++count;
  }
  return count;
}

// Throws unless the member takes so many arguments. Not every system's own Invoke looks at surplus ones.
void requireCount(ITypeInfo& type, DISPID member, WORD flags, UINT given) {
  FUNCDESC* function = nullptr;
  for (UINT i = 0; SUCCEEDED(type.GetFuncDesc(i, &function)); ++i) {
    const bool isMeant = function->memid == member && (function->invkind & flags) != 0;
    const bool fits = !isMeant || countOfArguments(*function) == static_cast<int>(given);
    type.ReleaseFuncDesc(function);
    if (!fits) throw Failure(DISP_E_BADPARAMCOUNT);
  }
}

}  // namespace

STDMETHODIMP Automation::GetTypeInfoCount(UINT* count) {
  return entry([&] { out(count) = 1; });
}

STDMETHODIMP Automation::GetTypeInfo(UINT index, LCID, ITypeInfo** info) {
  return entry([&] {
    ITypeInfo*& result = out(info);
    if (index != 0) throw Failure(DISP_E_BADINDEX);
    result = ComPtr<ITypeInfo>(&typeInfo()).detach();
  });
}

STDMETHODIMP Automation::GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  return entry([&] {
    if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    if (count == 0) return E_INVALIDARG;
    requireReadable(names, count * sizeof *names);
    requireWritable(ids, count * sizeof *ids);
    for (UINT i = 0; i < count; ++i) requireReadable(names[i], sizeof(OLECHAR));
    return typeInfo().GetIDsOfNames(names, count, ids);
  });
}

STDMETHODIMP Automation::Invoke(DISPID member, REFIID reserved, LCID, WORD flags, DISPPARAMS* arguments,
                                VARIANT* result, EXCEPINFO* exception, UINT* badArgument) {
  return entry([&] {
    if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    requireArguments(arguments);
    if (result != nullptr) requireWritable(result, sizeof *result);
    if (exception != nullptr) requireWritable(exception, sizeof *exception);
    if (badArgument != nullptr) requireWritable(badArgument, sizeof *badArgument);
    requireCount(typeInfo(), member, flags, arguments->cArgs);
    SetErrorInfo(0, nullptr);
    return typeInfo().Invoke(static_cast<_ctlCycEd*>(this), member, flags, arguments, result, exception, badArgument);
  });
}

STDMETHODIMP Automation::SetConfigXML(BSTR strConfigXml) {
  return explained(entry([&] {
    std::string text = toUtf8(strConfigXml);
    session_.editor().SetConfigXML(std::move(text));
  }));
}

STDMETHODIMP Automation::SetXMLStrings(BSTR strLatestKam, BSTR strCycle) {
  return explained(entry([&] {
    const std::string catalogue = toUtf8(strLatestKam);
    const std::string cycle = toUtf8(strCycle);
    session_.settledEditor().SetXMLStrings(catalogue, cycle);
  }));
}

STDMETHODIMP Automation::put_Ignore_Hidden(VARIANT_BOOL booNewValue) {
  return explained(entry([&] { session_.editor().Ignore_Hidden(booNewValue != VARIANT_FALSE); }));
}

STDMETHODIMP Automation::get_CycleChanged(VARIANT_BOOL* booChanged) {
  return explained(entry([&] {
    VARIANT_BOOL& result = out(booChanged);
    result = session_.editor().CycleChanged() ? VARIANT_TRUE : VARIANT_FALSE;
  }));
}

STDMETHODIMP Automation::RetrieveCycle(BSTR* strCycle) {
  return explained(entry([&] {
    BSTR& result = out(strCycle);
    result = toBasicString(session_.settledEditor().RetrieveCycle());
  }));
}

STDMETHODIMP Automation::put_ResetCycle(BSTR strCycle) {
  return explained(entry([&] {
    const std::string text = toUtf8(strCycle);
    session_.editor().ResetCycle(text);
  }));
}

ITypeInfo& Automation::typeInfo() {
  if (!typeInfo_) typeInfo_ = ownTypeInfo(__uuidof(_ctlCycEd));
  return *typeInfo_.get();
}

}  // namespace mavCycEd::com
