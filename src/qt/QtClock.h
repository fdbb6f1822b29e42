#pragma once

#include <QDateTime>

#include "platform/Clock.h"

namespace mavCycEd::qt {

/// The system's clock in local time.
class QtClock : public platform::Clock {
 public:
  std::string localTimestamp() const override {
    return QDateTime::currentDateTime().toString(Qt::ISODate).toStdString();
  }
};

}  // namespace mavCycEd::qt
