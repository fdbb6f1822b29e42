#pragma once

namespace mavCycEd::com {

/// For whom the class is registered: for everybody at the machine, which takes an administrator's rights, or for the
/// user alone.
enum class Scope { Machine, User };

/// Writes everything that the system and containers look up: the class, its names, the type library, its interfaces.
/// What was registered before from elsewhere is replaced. Throws com::Failure; what had been written by then is taken
/// back.
void registerServer(Scope scope);

/// Takes it all back, and nothing else. What is not there is no failure.
void unregisterServer(Scope scope);

}  // namespace mavCycEd::com
