#pragma once

#include "control/ControlScreen.h"

namespace mavCycEd {

/// Gives the screen its captions, titles and fonts, and switches the timer off.
void setUpScreen(const ControlScreen& screen);

/// Takes the event handlers back from every control of the screen.
void disconnectScreen(const ControlScreen& screen);

}  // namespace mavCycEd
