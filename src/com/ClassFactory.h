#pragma once

#include "com/Com.h"

namespace mavCycEd::com {

/// Makes controls. The library's class has one such object, which lives as long as the library: its references only
/// keep the library in memory.
class ClassFactory : public IClassFactory {
 public:
  static ClassFactory& instance();

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override;
  STDMETHODIMP_(ULONG) Release() override;
  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** object) override;
  STDMETHODIMP LockServer(BOOL lock) override;

 private:
  ClassFactory() = default;
};

}  // namespace mavCycEd::com
