#pragma once

#include "platform/SystemMessage.h"

namespace mavCycEd::qt {

/// The system's error texts.
class QtSystemMessage : public platform::SystemMessage {
 public:
  std::string formatMessage(std::int32_t code) const override;
  std::int32_t lastErrorCode() const override;
};

}  // namespace mavCycEd::qt
