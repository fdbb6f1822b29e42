#pragma once

#include "com/Activation.h"
#include "com/Extent.h"
#include "com/Lifetime.h"

namespace mavCycEd::com {

/// The control's window, as the container of a control that is in place uses it.
class InPlaceObject : public Part<IOleInPlaceObject> {
 public:
  InPlaceObject(Lifetime& lifetime, EditorSession& session, Extent& extent, Activation& activation)
      : Part(lifetime), session_(session), extent_(extent), activation_(activation) {}

  STDMETHODIMP GetWindow(HWND* window) override;
  STDMETHODIMP ContextSensitiveHelp(BOOL enter) override;
  STDMETHODIMP InPlaceDeactivate() override;
  STDMETHODIMP UIDeactivate() override;
  STDMETHODIMP SetObjectRects(LPCRECT position, LPCRECT clip) override;
  STDMETHODIMP ReactivateAndUndo() override;

 private:
  EditorSession& session_;
  Extent& extent_;
  Activation& activation_;
};

/// The control with the user's attention: what the container's message loop asks before it does anything itself.
class InPlaceActiveObject : public Part<IOleInPlaceActiveObject> {
 public:
  InPlaceActiveObject(Lifetime& lifetime, Site& site, EditorSession& session, Activation& activation)
      : Part(lifetime), site_(site), session_(session), activation_(activation) {}

  STDMETHODIMP GetWindow(HWND* window) override;
  STDMETHODIMP ContextSensitiveHelp(BOOL enter) override;
  STDMETHODIMP TranslateAccelerator(LPMSG message) override;
  STDMETHODIMP OnFrameWindowActivate(BOOL active) override;
  STDMETHODIMP OnDocWindowActivate(BOOL active) override;
  STDMETHODIMP ResizeBorder(LPCRECT border, IOleInPlaceUIWindow* window, BOOL frameWindow) override;
  STDMETHODIMP EnableModeless(BOOL enable) override;

 private:
  Site& site_;
  EditorSession& session_;
  Activation& activation_;
};

}  // namespace mavCycEd::com
