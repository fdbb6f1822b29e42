#include "com/OleObject.h"

#include <cstring>
#include <cwchar>

#include "com/MiscStatus.h"

namespace mavCycEd::com {
namespace {

LPOLESTR allocatedText(const wchar_t* text) {
  const std::size_t bytes = (std::wcslen(text) + 1) * sizeof(wchar_t);
  const auto copy = static_cast<LPOLESTR>(CoTaskMemAlloc(bytes));
  if (copy == nullptr) throw Failure(E_OUTOFMEMORY);
  std::memcpy(copy, text, bytes);
  return copy;
}

void requireContent(DWORD aspect) {
  if (aspect != DVASPECT_CONTENT) throw Failure(DV_E_DVASPECT);
}

}  // namespace

STDMETHODIMP OleObject::SetClientSite(IOleClientSite* site) {
  return entry([&] {
    if (site != nullptr) requireReadable(site, sizeof *site);
    // A container that takes its site away has done with the control.
    if (site == nullptr) activation_.deactivate();
    site_.set(site);
    activation_.followAmbient();
  });
}

STDMETHODIMP OleObject::GetClientSite(IOleClientSite** site) {
  return entry([&] {
    IOleClientSite*& result = out(site);
    result = ComPtr<IOleClientSite>(site_.client()).detach();
  });
}

STDMETHODIMP OleObject::SetHostNames(LPCOLESTR, LPCOLESTR) { return S_OK; }

// There is nothing to save: what the host wants of the cycle it has taken back before.
STDMETHODIMP OleObject::Close(DWORD) {
  return entry([&] {
    activation_.deactivate();
    if (listeners_) listeners_->SendOnClose();
  });
}

STDMETHODIMP OleObject::SetMoniker(DWORD, IMoniker*) { return E_NOTIMPL; }
STDMETHODIMP OleObject::GetMoniker(DWORD, DWORD, IMoniker** moniker) {
  return entry([&] {
    out(moniker);
    return E_NOTIMPL;
  });
}
STDMETHODIMP OleObject::InitFromData(IDataObject*, BOOL, DWORD) { return E_NOTIMPL; }
STDMETHODIMP OleObject::GetClipboardData(DWORD, IDataObject** data) {
  return entry([&] {
    out(data);
    return E_NOTIMPL;
  });
}

STDMETHODIMP OleObject::DoVerb(LONG verb, LPMSG message, IOleClientSite*, LONG, HWND, LPCRECT) {
  return entry([&] {
    if (message != nullptr) requireReadable(message, sizeof *message);
    switch (verb) {
      case OLEIVERB_PRIMARY:
      case OLEIVERB_UIACTIVATE: activation_.activateUi(message); return S_OK;
      case OLEIVERB_SHOW:
      case OLEIVERB_INPLACEACTIVATE: activation_.activate(); return S_OK;
      case OLEIVERB_HIDE: activation_.deactivate(); return S_OK;
      case OLEIVERB_DISCARDUNDOSTATE: return S_OK;
      case OLEIVERB_OPEN: return E_NOTIMPL;  // there is no window outside the container's
      default: break;
    }
    if (verb < 0) return E_NOTIMPL;
    activation_.activateUi(message);
    return OLEOBJ_S_INVALIDVERB;
  });
}

STDMETHODIMP OleObject::EnumVerbs(IEnumOLEVERB** verbs) {
  return entry([&] {
    out(verbs);
    return OLE_S_USEREG;
  });
}

STDMETHODIMP OleObject::Update() { return S_OK; }
STDMETHODIMP OleObject::IsUpToDate() { return S_OK; }

STDMETHODIMP OleObject::GetUserClassID(CLSID* classId) {
  return entry([&] { out(classId) = __uuidof(::ctlCycEd); });
}

STDMETHODIMP OleObject::GetUserType(DWORD, LPOLESTR* type) {
  return entry([&] {
    LPOLESTR& result = out(type);
    result = allocatedText(className);
  });
}

STDMETHODIMP OleObject::SetExtent(DWORD aspect, SIZEL* size) {
  return entry([&] {
    requireContent(aspect);
    requireReadable(size, sizeof *size);
    if (size->cx < 0 || size->cy < 0) throw Failure(E_INVALIDARG);
    extent_.set(*size);
  });
}

STDMETHODIMP OleObject::GetExtent(DWORD aspect, SIZEL* size) {
  return entry([&] {
    SIZEL& result = out(size);
    requireContent(aspect);
    result = extent_.size();
  });
}

STDMETHODIMP OleObject::Advise(IAdviseSink* listener, DWORD* cookie) {
  return entry([&] {
    out(cookie);
    requireReadable(listener, sizeof *listener);
    return listeners().Advise(listener, cookie);
  });
}

STDMETHODIMP OleObject::Unadvise(DWORD cookie) {
  return entry([&] { return listeners_ ? listeners_->Unadvise(cookie) : OLE_E_NOCONNECTION; });
}

STDMETHODIMP OleObject::EnumAdvise(IEnumSTATDATA** result) {
  return entry([&] {
    out(result);
    return listeners().EnumAdvise(result);
  });
}

STDMETHODIMP OleObject::GetMiscStatus(DWORD aspect, DWORD* status) {
  return entry([&] {
    DWORD& result = out(status);
    requireContent(aspect);
    result = miscStatus;
  });
}

STDMETHODIMP OleObject::SetColorScheme(LOGPALETTE*) { return E_NOTIMPL; }

IOleAdviseHolder& OleObject::listeners() {
  if (!listeners_) check(CreateOleAdviseHolder(listeners_.put()));
  return *listeners_.get();
}

}  // namespace mavCycEd::com
