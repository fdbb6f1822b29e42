#pragma once

#include "com/Lifetime.h"
#include "com/Pointers.h"

namespace mavCycEd::com {

class EditorSession;

/// The members that hosts call, early bound and by name. What the editor itself cannot do is told by its event; a code
/// other than S_OK is a call that did not reach the editor, or a result that did not reach the caller.
class Automation : public Part<_ctlCycEd> {
 public:
  Automation(Lifetime& lifetime, EditorSession& session) : Part(lifetime), session_(session) {}

  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
  STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
  STDMETHODIMP Invoke(DISPID member, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* arguments, VARIANT* result,
                      EXCEPINFO* exception, UINT* badArgument) override;

  STDMETHODIMP SetConfigXML(BSTR strConfigXml) override;
  STDMETHODIMP SetXMLStrings(BSTR strLatestKam, BSTR strCycle) override;
  STDMETHODIMP put_Ignore_Hidden(VARIANT_BOOL booNewValue) override;
  STDMETHODIMP get_CycleChanged(VARIANT_BOOL* booChanged) override;
  STDMETHODIMP RetrieveCycle(BSTR* strCycle) override;
  STDMETHODIMP put_ResetCycle(BSTR strCycle) override;

 private:
  ITypeInfo& typeInfo();

  EditorSession& session_;
  ComPtr<ITypeInfo> typeInfo_;
};

}  // namespace mavCycEd::com
