// The one place where the identifiers of our own types are stored: the platform's come first, and stay in its library.
#include "win32/Windows.h"
// windows.h comes before what needs it
#include <ole2.h>
// and from here on identifiers are stored
#include <initguid.h>

#include <mavCycEdTypes.h>
