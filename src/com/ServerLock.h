#pragma once

namespace mavCycEd::com {

/// Whoever holds one of these keeps the library in memory. The one count of the process: a library has one life,
/// whatever number of controls and threads use it.
class ServerLock {
 public:
  ServerLock() { add(); }
  ~ServerLock() { remove(); }
  ServerLock(const ServerLock&) { add(); }
  ServerLock& operator=(const ServerLock&) = default;

  static void add();
  static void remove();
  /// How many there are.
  static long count();
};

}  // namespace mavCycEd::com
