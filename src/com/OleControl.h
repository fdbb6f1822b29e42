#pragma once

#include "com/Activation.h"
#include "com/Events.h"
#include "com/Lifetime.h"

namespace mavCycEd::com {

/// The control as a control: its access keys, and what it follows of its surroundings.
class OleControl : public Part<IOleControl> {
 public:
  OleControl(Lifetime& lifetime, EditorSession& session, Activation& activation, Events& events)
      : Part(lifetime), session_(session), activation_(activation), events_(events) {}
  ~OleControl();

  STDMETHODIMP GetControlInfo(CONTROLINFO* info) override;
  STDMETHODIMP OnMnemonic(MSG* message) override;
  STDMETHODIMP OnAmbientPropertyChange(DISPID which) override;
  STDMETHODIMP FreezeEvents(BOOL freeze) override;

 private:
  void forgetAccessKeys();

  EditorSession& session_;
  Activation& activation_;
  Events& events_;
  HACCEL accessKeys_ = nullptr;
};

}  // namespace mavCycEd::com
