#pragma once

#include "kit/Lifeline.h"
#include "kit/Notify.h"

namespace mavCycEd::win32 {

using kit::Lifeline;
using kit::tell;

}  // namespace mavCycEd::win32
