#pragma once

#include <memory>

#include "catalogue/AtomListProvider.h"
#include "platform/Clock.h"
#include "platform/MessageBox.h"
#include "platform/Timer.h"

namespace mavCycEd {

/// What a host may put in place of the control's own services. All are optional: a null pointer leaves the control its
/// own. The control keeps them for as long as it lives.
struct HostServices {
  /// Answers the questions that the catalogue leaves to the instrument's suite: further atoms, units, hidden objects,
  /// further parameters. The control's own one draws on the configuration text.
  std::shared_ptr<AtomListProvider> provider = nullptr;
  /// Shows the control's messages. The control's own one shows boxes that are modal for the control's window.
  std::shared_ptr<platform::MessageBox> messageBox = nullptr;
  /// The local time that is written into cycles as the time of their creation and last change. The control's own one
  /// is the system's clock.
  std::shared_ptr<platform::Clock> clock = nullptr;
  /// The timer that selects the grid's first row half a second after the grid was refilled. The control's own one gives
  /// way to an operator who works in the grid by then: it switches itself off.
  std::shared_ptr<platform::Timer> gridTimer = nullptr;
  /// The timer that ends a stretch of typing in the description, which is one step to undo, after a second's pause.
  std::shared_ptr<platform::Timer> typingTimer = nullptr;
};

}  // namespace mavCycEd
