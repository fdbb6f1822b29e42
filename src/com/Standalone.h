#pragma once

#include <atomic>

#include "com/Barrier.h"
#include "com/Pointers.h"
#include "com/ServerLock.h"

namespace mavCycEd::com {

/// An object of one interface that lives on its own, from one reference to none.
template <typename Interface>
class Standalone : public Interface {
 public:
  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    return barrier([&] {
      void*& result = out(object);
      if (iid != IID_IUnknown && iid != __uuidof(Interface)) return E_NOINTERFACE;
      result = static_cast<Interface*>(this);
      AddRef();
      return S_OK;
    });
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 protected:
  Standalone() = default;
  virtual ~Standalone() = default;

 private:
  std::atomic<ULONG> references_{0};
  ServerLock lock_;
};

}  // namespace mavCycEd::com
