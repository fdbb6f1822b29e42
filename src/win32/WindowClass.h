#pragma once

#include "win32/Windows.h"

namespace mavCycEd::win32 {

/// The name of a window class of ours, which is registered when it is first asked for. Its procedure is the system's
/// own default: what a window does is its object's affair.
const wchar_t* ownWindowClass(const wchar_t* name, UINT style);

}  // namespace mavCycEd::win32
