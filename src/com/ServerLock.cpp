#include "com/ServerLock.h"

#include <atomic>

namespace mavCycEd::com {
namespace {

std::atomic<long> locks{0};

}  // namespace

void ServerLock::add() { ++locks; }
void ServerLock::remove() { --locks; }
long ServerLock::count() { return locks; }

}  // namespace mavCycEd::com
