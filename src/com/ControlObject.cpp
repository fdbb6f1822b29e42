#include "com/ControlObject.h"

#include <array>
#include <utility>

namespace mavCycEd::com {

HRESULT ControlObject::create(IUnknown* outer, REFIID iid, void** object) {
  return barrier([&] {
    out(object);
    if (outer != nullptr && iid != IID_IUnknown) return CLASS_E_NOAGGREGATION;
    const ComPtr<IUnknown> control(new ControlObject(outer));
    return control->QueryInterface(iid, object);
  });
}

STDMETHODIMP ControlObject::QueryInterface(REFIID iid, void** object) {
  return barrier([&] {
    void*& result = out(object);
    IUnknown* const found = find(iid);
    if (found == nullptr) return E_NOINTERFACE;
    found->AddRef();
    result = found;
    return S_OK;
  });
}

STDMETHODIMP_(ULONG) ControlObject::AddRef() { return ++references_; }

STDMETHODIMP_(ULONG) ControlObject::Release() {
  const ULONG left = --references_;
  if (left > 0) return left;
  // Who is told of the end may count references once more: that must not lead here again.
  constexpr ULONG ending = 1U << 30U;
  references_ = ending;
  barrier([this] { activation_.deactivate(); });
  delete this;
  return 0;
}

// Each part has one table of functions for the interfaces that stand in its list, so that a pointer to any of them is
// what the caller gets.
IUnknown* ControlObject::find(REFIID iid) {
  if (iid == IID_IUnknown) return this;
  const std::array<std::pair<const IID*, IUnknown*>, 18> interfaces{{
      {&__uuidof(_ctlCycEd), static_cast<_ctlCycEd*>(&automation_)},
      {&IID_IDispatch, static_cast<IDispatch*>(&automation_)},
      {&IID_IProvideClassInfo, static_cast<IProvideClassInfo*>(&classFacts_)},
      {&IID_IProvideClassInfo2, static_cast<IProvideClassInfo2*>(&classFacts_)},
      {&IID_ISupportErrorInfo, static_cast<ISupportErrorInfo*>(&classFacts_)},
      {&IID_IObjectSafety, static_cast<IObjectSafety*>(&classFacts_)},
      {&IID_IConnectionPointContainer, &connectionPoints_},
      {&IID_IOleObject, &oleObject_},
      {&IID_IOleControl, &oleControl_},
      {&IID_IOleWindow, static_cast<IOleWindow*>(&inPlaceObject_)},
      {&IID_IOleInPlaceObject, &inPlaceObject_},
      {&IID_IOleInPlaceActiveObject, &inPlaceActiveObject_},
      {&IID_IViewObject, static_cast<IViewObject*>(&view_)},
      {&IID_IViewObject2, static_cast<IViewObject2*>(&view_)},
      {&IID_IViewObjectEx, &view_},
      {&IID_IPersist, static_cast<IPersistStreamInit*>(&persistence_)},
      {&IID_IPersistStreamInit, &persistence_},
      {&IID_IPersistPropertyBag, &propertyBagPersistence_},
  }};
  for (const auto& [known, part] : interfaces) {
    if (*known == iid) return part;
  }
  return nullptr;
}

}  // namespace mavCycEd::com
