#pragma once

#include "com/Activation.h"
#include "com/Extent.h"
#include "com/Lifetime.h"

namespace mavCycEd::com {

/// The control as an embedded object: its site, its verbs, its size, and who wants to hear of it.
class OleObject : public Part<IOleObject> {
 public:
  OleObject(Lifetime& lifetime, Site& site, Extent& extent, Activation& activation)
      : Part(lifetime), site_(site), extent_(extent), activation_(activation) {}

  STDMETHODIMP SetClientSite(IOleClientSite* site) override;
  STDMETHODIMP GetClientSite(IOleClientSite** site) override;
  STDMETHODIMP SetHostNames(LPCOLESTR application, LPCOLESTR document) override;
  STDMETHODIMP Close(DWORD saveOption) override;
  STDMETHODIMP SetMoniker(DWORD which, IMoniker* moniker) override;
  STDMETHODIMP GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) override;
  STDMETHODIMP InitFromData(IDataObject* data, BOOL creation, DWORD reserved) override;
  STDMETHODIMP GetClipboardData(DWORD reserved, IDataObject** data) override;
  STDMETHODIMP DoVerb(LONG verb, LPMSG message, IOleClientSite* site, LONG index, HWND parent,
                      LPCRECT position) override;
  STDMETHODIMP EnumVerbs(IEnumOLEVERB** verbs) override;
  STDMETHODIMP Update() override;
  STDMETHODIMP IsUpToDate() override;
  STDMETHODIMP GetUserClassID(CLSID* classId) override;
  STDMETHODIMP GetUserType(DWORD form, LPOLESTR* type) override;
  STDMETHODIMP SetExtent(DWORD aspect, SIZEL* size) override;
  STDMETHODIMP GetExtent(DWORD aspect, SIZEL* size) override;
  STDMETHODIMP Advise(IAdviseSink* listener, DWORD* cookie) override;
  STDMETHODIMP Unadvise(DWORD cookie) override;
  STDMETHODIMP EnumAdvise(IEnumSTATDATA** listeners) override;
  STDMETHODIMP GetMiscStatus(DWORD aspect, DWORD* status) override;
  STDMETHODIMP SetColorScheme(LOGPALETTE* palette) override;

 private:
  IOleAdviseHolder& listeners();

  Site& site_;
  Extent& extent_;
  Activation& activation_;
  ComPtr<IOleAdviseHolder> listeners_;
};

}  // namespace mavCycEd::com
