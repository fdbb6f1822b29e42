#pragma once

#include "kit/Notify.h"

namespace mavCycEd::qt {

using kit::tell;

}  // namespace mavCycEd::qt
