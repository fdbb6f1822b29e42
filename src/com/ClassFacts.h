#pragma once

#include "com/Lifetime.h"

namespace mavCycEd::com {

/// What containers ask of the class rather than of one control: its type description, its event interface, whether its
/// members explain their errors, and whether a stranger's page may use it.
///
/// The control is safe for untrusted callers and data: it opens no file and no connection, starts no program, changes
/// no setting of the system, and its members take texts and give texts. Only the operator's F1 opens anything: the help
/// file beside the library, which no caller can name. A document with a document type, which could name files or grow
/// without bounds, is refused; what an operator is asked stays in message boxes and the dialog of the control.
class ClassFacts : public Part<IProvideClassInfo2, ISupportErrorInfo, IObjectSafety> {
 public:
  explicit ClassFacts(Lifetime& lifetime) : Part(lifetime) {}

  STDMETHODIMP GetClassInfo(ITypeInfo** info) override;
  STDMETHODIMP GetGUID(DWORD kind, GUID* guid) override;

  STDMETHODIMP InterfaceSupportsErrorInfo(REFIID iid) override;

  STDMETHODIMP GetInterfaceSafetyOptions(REFIID iid, DWORD* supported, DWORD* enabled) override;
  STDMETHODIMP SetInterfaceSafetyOptions(REFIID iid, DWORD mask, DWORD enabled) override;

 private:
  void requireOwn(REFIID iid);

  DWORD safety_ = 0;
};

}  // namespace mavCycEd::com
