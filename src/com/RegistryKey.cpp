#include "com/RegistryKey.h"

#include "com/Barrier.h"

namespace mavCycEd::com {
namespace {

void checkSystem(LSTATUS status) {
  if (status != ERROR_SUCCESS) throw Failure(HRESULT_FROM_WIN32(static_cast<DWORD>(status)));
}

}  // namespace

RegistryKey::RegistryKey(HKEY parent, const std::wstring& path) {
  checkSystem(RegCreateKeyExW(parent, path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_READ | KEY_WRITE, nullptr,
                              &key_, nullptr));
}

void RegistryKey::set(const std::wstring& name, const std::wstring& value) const {
  const auto bytes = reinterpret_cast<const BYTE*>(value.c_str());
  const auto size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
  checkSystem(RegSetValueExW(key_, name.empty() ? nullptr : name.c_str(), 0, REG_SZ, bytes, size));
}

void RegistryKey::removeTree(HKEY parent, const std::wstring& path) {
  const LSTATUS status = RegDeleteTreeW(parent, path.c_str());
  if (status != ERROR_FILE_NOT_FOUND) checkSystem(status);
}

void RegistryKey::removeIfEmpty(HKEY parent, const std::wstring& path) {
  DWORD keys = 0;
  DWORD values = 0;
  HKEY key = nullptr;
  if (RegOpenKeyExW(parent, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return;
  const LSTATUS status = RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values, nullptr,
                                          nullptr, nullptr, nullptr);
  RegCloseKey(key);
  if (status == ERROR_SUCCESS && keys == 0 && values == 0) checkSystem(RegDeleteKeyW(parent, path.c_str()));
}

}  // namespace mavCycEd::com
