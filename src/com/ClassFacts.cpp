#include "com/ClassFacts.h"

#include "com/TypeLibrary.h"

namespace mavCycEd::com {
namespace {

constexpr DWORD safeFor = INTERFACESAFE_FOR_UNTRUSTED_CALLER | INTERFACESAFE_FOR_UNTRUSTED_DATA;

}  // namespace

STDMETHODIMP ClassFacts::GetClassInfo(ITypeInfo** info) {
  return entry([&] {
    ITypeInfo*& result = out(info);
    result = ownTypeInfo(__uuidof(::ctlCycEd)).detach();
  });
}

STDMETHODIMP ClassFacts::GetGUID(DWORD kind, GUID* guid) {
  return entry([&] {
    GUID& result = out(guid);
    if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID) throw Failure(E_INVALIDARG);
    result = __uuidof(__ctlCycEd);
  });
}

STDMETHODIMP ClassFacts::InterfaceSupportsErrorInfo(REFIID iid) {
  return iid == __uuidof(_ctlCycEd) || iid == IID_IDispatch ? S_OK : S_FALSE;
}

STDMETHODIMP ClassFacts::GetInterfaceSafetyOptions(REFIID iid, DWORD* supported, DWORD* enabled) {
  return entry([&] {
    DWORD& supportedResult = out(supported);
    DWORD& enabledResult = out(enabled);
    requireOwn(iid);
    supportedResult = safeFor;
    enabledResult = safety_;
  });
}

STDMETHODIMP ClassFacts::SetInterfaceSafetyOptions(REFIID iid, DWORD mask, DWORD enabled) {
  return entry([&] {
    requireOwn(iid);
    if ((mask & ~safeFor) != 0) throw Failure(E_FAIL);
    safety_ = (safety_ & ~mask) | (enabled & mask);
  });
}

void ClassFacts::requireOwn(REFIID iid) {
  ComPtr<IUnknown> interfaceOfOurs;
  if (FAILED(lifetime_.whole().QueryInterface(iid, interfaceOfOurs.putVoid()))) throw Failure(E_NOINTERFACE);
}

}  // namespace mavCycEd::com
