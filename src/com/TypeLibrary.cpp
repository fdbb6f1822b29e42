#include "com/TypeLibrary.h"

#include "com/Barrier.h"
#include "win32/Module.h"

namespace mavCycEd::com {

std::wstring ownFile() {
  std::wstring name(MAX_PATH, L'\0');
  for (;;) {
    const DWORD size = GetModuleFileNameW(win32::ownModule(), name.data(), static_cast<DWORD>(name.size()));
    if (size == 0) throw Failure(HRESULT_FROM_WIN32(GetLastError()));
    if (size < name.size()) {
      name.resize(size);
      return name;
    }
    name.resize(2 * name.size());
  }
}

ComPtr<ITypeLib> ownTypeLibrary() {
  ComPtr<ITypeLib> library;
  check(LoadTypeLibEx(ownFile().c_str(), REGKIND_NONE, library.put()));
  return library;
}

ComPtr<ITypeInfo> ownTypeInfo(REFGUID type) {
  ComPtr<ITypeInfo> info;
  check(ownTypeLibrary()->GetTypeInfoOfGuid(type, info.put()));
  return info;
}

}  // namespace mavCycEd::com
