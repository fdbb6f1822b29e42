#pragma once

#include <string>

#include "com/Pointers.h"

namespace mavCycEd::com {

/// The version of the type library, as its IDL says.
inline constexpr WORD typeLibraryMajor = 1;
inline constexpr WORD typeLibraryMinor = 3;

/// The file that this code is linked into.
std::wstring ownFile();

/// The type library that this file holds as a resource, registered or not.
ComPtr<ITypeLib> ownTypeLibrary();

/// The description of one of our own types.
ComPtr<ITypeInfo> ownTypeInfo(REFGUID type);

}  // namespace mavCycEd::com
