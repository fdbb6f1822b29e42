#pragma once

/// The headers of COM and of OLE controls, and our own interfaces as the IDL has them.
#include "win32/Windows.h"
// windows.h comes before the headers that need it.
#include <objsafe.h>
#include <ocidl.h>
#include <ole2.h>
#include <oleauto.h>
#include <olectl.h>
// and what the build makes of mavCycEd.idl
#include <mavCycEdTypes.h>
