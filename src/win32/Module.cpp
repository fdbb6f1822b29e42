#include "win32/Module.h"

// The linker's name for the beginning of this module.
extern "C" const IMAGE_DOS_HEADER __ImageBase;

namespace mavCycEd::win32 {

HINSTANCE ownModule() { return reinterpret_cast<HINSTANCE>(const_cast<IMAGE_DOS_HEADER*>(&__ImageBase)); }

namespace {

HANDLE newContext() {
  constexpr int manifestOfADll = 2;
  ACTCTXW request{};
  request.cbSize = sizeof request;
  request.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
  request.hModule = ownModule();
  request.lpResourceName = MAKEINTRESOURCEW(manifestOfADll);
  return CreateActCtxW(&request);
}

}  // namespace

ThemedScope::ThemedScope() : context_(newContext()) {
  if (context_ != INVALID_HANDLE_VALUE) active_ = ActivateActCtx(context_, &cookie_) != FALSE;
}

ThemedScope::~ThemedScope() {
  if (active_) DeactivateActCtx(0, cookie_);
  if (context_ != INVALID_HANDLE_VALUE) ReleaseActCtx(context_);
}

}  // namespace mavCycEd::win32
