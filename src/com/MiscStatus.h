#pragma once

#include "com/Com.h"

namespace mavCycEd::com {

/// The class in words.
inline constexpr const wchar_t* className = L"mavCycEd cycle editor control";

/// How containers treat the control, as it says itself and as its registration says.
inline constexpr DWORD miscStatus = OLEMISC_RECOMPOSEONRESIZE | OLEMISC_CANTLINKINSIDE | OLEMISC_INSIDEOUT |
                                    OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_SETCLIENTSITEFIRST;

}  // namespace mavCycEd::com
