#pragma once

#include <QObject>
#include <QPushButton>
#include <utility>

#include "kit/CommandGate.h"
#include "platform/Button.h"

namespace mavCycEd::qt {

/// A push button.
class QtButton : public QObject, public platform::Button {
  Q_OBJECT

 public:
  QtButton(const kit::CommandGate& gate, const char* name, QWidget* parent);

  QPushButton* widget() const { return button_; }

  void setEvents(platform::ButtonEvents events) override { events_ = std::move(events); }
  std::string caption() const override { return caption_; }
  void setCaption(std::string_view caption) override;
  bool isEnabled() const override { return !button_->testAttribute(Qt::WA_ForceDisabled); }
  void setEnabled(bool enabled) override { button_->setEnabled(enabled); }

 private:
  void raiseClick();

  const kit::CommandGate& gate_;
  QPushButton* button_;
  platform::ButtonEvents events_;
  std::string caption_;
};

}  // namespace mavCycEd::qt
