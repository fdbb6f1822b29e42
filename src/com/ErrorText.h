#pragma once

#include "com/Com.h"

namespace mavCycEd::com {

/// Leaves for the caller of one of our members, who asks for it with GetErrorInfo, what a code means in words. Returns
/// the code.
HRESULT explained(HRESULT code) noexcept;

}  // namespace mavCycEd::com
