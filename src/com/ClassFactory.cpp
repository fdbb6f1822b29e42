#include "com/ClassFactory.h"

#include "com/Barrier.h"
#include "com/ControlObject.h"
#include "com/Pointers.h"
#include "com/ServerLock.h"

namespace mavCycEd::com {

ClassFactory& ClassFactory::instance() {
  static ClassFactory factory;
  return factory;
}

STDMETHODIMP ClassFactory::QueryInterface(REFIID iid, void** object) {
  return barrier([&] {
    void*& result = out(object);
    if (iid != IID_IUnknown && iid != IID_IClassFactory) return E_NOINTERFACE;
    result = static_cast<IClassFactory*>(this);
    AddRef();
    return S_OK;
  });
}

// No counts of its own to tell apart: the numbers are for debugging only.
STDMETHODIMP_(ULONG) ClassFactory::AddRef() {
  ServerLock::add();
  return 2;
}

STDMETHODIMP_(ULONG) ClassFactory::Release() {
  ServerLock::remove();
  return 1;
}

STDMETHODIMP ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** object) {
  return ControlObject::create(outer, iid, object);
}

STDMETHODIMP ClassFactory::LockServer(BOOL lock) {
  if (lock != FALSE) {
    ServerLock::add();
  } else {
    ServerLock::remove();
  }
  return S_OK;
}

}  // namespace mavCycEd::com
