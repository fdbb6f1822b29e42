#pragma once

#include <optional>

#include "com/EditorSession.h"
#include "com/Lifetime.h"
#include "com/Pointers.h"
#include "com/Site.h"

namespace mavCycEd::com {

/// How far the control has come in its container: loaded, in place (its window shows), or in place with the user's
/// attention (the container's keys go through it). Every step tells the container, and a container may answer any
/// step with another one: after each call to it the state is looked at anew.
class Activation {
 public:
  Activation(Lifetime& lifetime, Site& site, EditorSession& session);

  bool isInPlace() const { return static_cast<bool>(inPlaceSite_); }
  bool isUiActive() const { return uiActive_; }

  /// Shows the control in place. E_FAIL where the container does not have it.
  void activate();
  /// Shows it and gives it the user's attention; `message` is the key that led here, if one did.
  void activateUi(const MSG* message);
  void deactivateUi();
  void deactivate();

  void move(const RECT& position, const RECT& clip);
  /// Takes over what the container says of its surroundings.
  void followAmbient();

 private:
  void enter(const ComPtr<IOleInPlaceSite>& site);
  void tellActiveObject(bool active);
  void tellModal(bool open);

  Lifetime& lifetime_;
  Site& site_;
  EditorSession& session_;
  ComPtr<IOleInPlaceSite> inPlaceSite_;
  ComPtr<IOleInPlaceFrame> frame_;
  ComPtr<IOleInPlaceUIWindow> document_;
  bool uiActive_ = false;
};

}  // namespace mavCycEd::com
