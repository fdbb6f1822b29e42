#pragma once

#include "win32/Windows.h"

namespace mavCycEd::win32 {

/// The program or DLL that this code is linked into.
HINSTANCE ownModule();

/// While one of these lives, windows are made with the looks that our own manifest asks for, whatever the program
/// around us asks for itself. Without such a manifest it does nothing.
class ThemedScope {
 public:
  ThemedScope();
  ~ThemedScope();
  ThemedScope(const ThemedScope&) = delete;
  ThemedScope& operator=(const ThemedScope&) = delete;

 private:
  HANDLE context_;
  ULONG_PTR cookie_ = 0;
  bool active_ = false;
};

}  // namespace mavCycEd::win32
