#pragma once

#include "com/Extent.h"
#include "com/Lifetime.h"

namespace mavCycEd::com {

/// What a container stores of the control with its form: the size, and nothing of a cycle. Cycles belong to the host,
/// who hands them in and takes them back as texts.
class Persistence : public Part<IPersistStreamInit> {
 public:
  Persistence(Lifetime& lifetime, Extent& extent) : Part(lifetime), extent_(extent) {}

  STDMETHODIMP GetClassID(CLSID* classId) override;
  STDMETHODIMP IsDirty() override;
  STDMETHODIMP Load(IStream* stream) override;
  STDMETHODIMP Save(IStream* stream, BOOL clearDirty) override;
  STDMETHODIMP GetSizeMax(ULARGE_INTEGER* size) override;
  STDMETHODIMP InitNew() override;

 private:
  Extent& extent_;
};

/// The same for containers that store controls by named values: they keep the size themselves, so nothing is left to
/// store.
class PropertyBagPersistence : public Part<IPersistPropertyBag> {
 public:
  explicit PropertyBagPersistence(Lifetime& lifetime) : Part(lifetime) {}

  STDMETHODIMP GetClassID(CLSID* classId) override;
  STDMETHODIMP InitNew() override { return S_OK; }
  STDMETHODIMP Load(IPropertyBag* bag, IErrorLog* errors) override;
  STDMETHODIMP Save(IPropertyBag* bag, BOOL clearDirty, BOOL saveAll) override;
};

}  // namespace mavCycEd::com
