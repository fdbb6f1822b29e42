#include "memory/Control.h"

#include "memory/MemoryFrame.h"

namespace mavCycEd::memory {

bool Control::isEnabledHere() const { return enabled_ && (container_ == nullptr || container_->isEnabledHere()); }

bool Control::isUsable() const { return enabled_ && visible_ && (container_ == nullptr || container_->isUsable()); }

}  // namespace mavCycEd::memory
