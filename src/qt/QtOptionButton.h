#pragma once

#include <QObject>
#include <QRadioButton>
#include <utility>

#include "kit/CommandGate.h"
#include "platform/OptionButton.h"

namespace mavCycEd::qt {

/// An option button. The options of one parent widget are one group.
class QtOptionButton : public QObject, public platform::OptionButton {
  Q_OBJECT

 public:
  QtOptionButton(const kit::CommandGate& gate, const char* name, QWidget* parent);

  QRadioButton* widget() const { return button_; }

  void setEvents(platform::OptionButtonEvents events) override { events_ = std::move(events); }
  std::string caption() const override { return caption_; }
  void setCaption(std::string_view caption) override;
  bool value() const override { return button_->isChecked(); }
  void select() override;

 private:
  void raiseClick();

  const kit::CommandGate& gate_;
  QRadioButton* button_;
  platform::OptionButtonEvents events_;
  std::string caption_;
  bool selecting_ = false;  // by code
};

}  // namespace mavCycEd::qt
