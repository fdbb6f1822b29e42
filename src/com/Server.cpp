#include <cwchar>

#include "com/Barrier.h"
#include "com/ClassFactory.h"
#include "com/Com.h"
#include "com/Pointers.h"
#include "com/Registration.h"
#include "com/ServerLock.h"

// What the library exports (see mavCycEd.def).
namespace com = mavCycEd::com;

BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) DisableThreadLibraryCalls(module);
  return TRUE;
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID iid, void** object) {
  return com::barrier([&] {
    com::out(object);
    if (classId != __uuidof(::ctlCycEd)) return CLASS_E_CLASSNOTAVAILABLE;
    return com::ClassFactory::instance().QueryInterface(iid, object);
  });
}

STDAPI DllCanUnloadNow() { return com::ServerLock::count() == 0 ? S_OK : S_FALSE; }

STDAPI DllRegisterServer() {
  return com::barrier([] { com::registerServer(com::Scope::Machine); });
}

STDAPI DllUnregisterServer() {
  return com::barrier([] { com::unregisterServer(com::Scope::Machine); });
}

// regsvr32 /n /i:user registers for the user alone, without an administrator's rights.
STDAPI DllInstall(BOOL install, LPCWSTR commandLine) {
  return com::barrier([&] {
    const bool user = commandLine != nullptr && _wcsicmp(commandLine, L"user") == 0;
    if (!user && commandLine != nullptr && *commandLine != L'\0') return E_INVALIDARG;
    const com::Scope scope = user ? com::Scope::User : com::Scope::Machine;
    if (install != FALSE) {
      com::registerServer(scope);
    } else {
      com::unregisterServer(scope);
    }
    return S_OK;
  });
}
