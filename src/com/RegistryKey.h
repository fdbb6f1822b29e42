#pragma once

#include <string>

#include "com/Com.h"

namespace mavCycEd::com {

/// A key of the registry, open for writing. Throws com::Failure.
class RegistryKey {
 public:
  /// Opens the key below another one; makes it if need be.
  RegistryKey(HKEY parent, const std::wstring& path);
  ~RegistryKey() { RegCloseKey(key_); }
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;

  HKEY handle() const { return key_; }
  /// Sets a text of the key; an empty name means the key's own.
  void set(const std::wstring& name, const std::wstring& value) const;

  /// Removes a key and everything below it; one that is not there is no failure.
  static void removeTree(HKEY parent, const std::wstring& path);
  /// Removes a key if nothing is left in it.
  static void removeIfEmpty(HKEY parent, const std::wstring& path);

 private:
  HKEY key_ = nullptr;
};

}  // namespace mavCycEd::com
