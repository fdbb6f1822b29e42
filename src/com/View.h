#pragma once

#include "com/Extent.h"
#include "com/Lifetime.h"
#include "com/Pointers.h"
#include "com/Site.h"

namespace mavCycEd::com {

/// The control's picture for places where its window does not stand: form designers and printouts.
class View : public Part<IViewObjectEx> {
 public:
  View(Lifetime& lifetime, Site& site, Extent& extent) : Part(lifetime), site_(site), extent_(extent) {}

  STDMETHODIMP Draw(DWORD aspect, LONG index, void* aspectInfo, DVTARGETDEVICE* target, HDC targetContext, HDC context,
                    LPCRECTL bounds, LPCRECTL windowBounds, BOOL(STDMETHODCALLTYPE* goOn)(ULONG_PTR),
                    ULONG_PTR goOnArgument) override;
  STDMETHODIMP GetColorSet(DWORD aspect, LONG index, void* aspectInfo, DVTARGETDEVICE* target, HDC targetContext,
                           LOGPALETTE** palette) override;
  STDMETHODIMP Freeze(DWORD aspect, LONG index, void* aspectInfo, DWORD* freeze) override;
  STDMETHODIMP Unfreeze(DWORD freeze) override;
  STDMETHODIMP SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* listener) override;
  STDMETHODIMP GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** listener) override;
  STDMETHODIMP GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE* target, LPSIZEL size) override;
  STDMETHODIMP GetRect(DWORD aspect, LPRECTL rect) override;
  STDMETHODIMP GetViewStatus(DWORD* status) override;
  STDMETHODIMP QueryHitPoint(DWORD aspect, LPCRECT bounds, POINT point, LONG closeness, DWORD* hit) override;
  STDMETHODIMP QueryHitRect(DWORD aspect, LPCRECT bounds, LPCRECT rect, LONG closeness, DWORD* hit) override;
  STDMETHODIMP GetNaturalExtent(DWORD aspect, LONG index, DVTARGETDEVICE* target, HDC targetContext,
                                DVEXTENTINFO* extentInfo, LPSIZEL size) override;

 private:
  Site& site_;
  Extent& extent_;
  ComPtr<IAdviseSink> listener_;
  DWORD listenerAspects_ = 0;
  DWORD listenerFlags_ = 0;
};

}  // namespace mavCycEd::com
